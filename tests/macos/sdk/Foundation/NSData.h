#pragma once

#import "NSObject.h"

#pragma clang assume_nonnull begin

@interface NSData : NSObject <NSCopying>
@property (readonly) NSUInteger length;
@property (readonly) const void *bytes;
+ (nullable instancetype)dataWithContentsOfFile:(NSString *)path;
- (instancetype)initWithBytesNoCopy:(void *)bytes length:(NSUInteger)length freeWhenDone:(BOOL)freeWhenDone;
@end

#pragma clang assume_nonnull end
