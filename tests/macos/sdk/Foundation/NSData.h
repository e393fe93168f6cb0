#pragma once

#import "NSObject.h"

#pragma clang assume_nonnull begin

typedef TN_OPTIONS(NSUInteger, NSDataWritingOptions){NSDataWritingAtomic = 1};

@interface NSData : NSObject <NSCopying>
@property (readonly) NSUInteger length;
@property (readonly) const void *bytes;
+ (nullable instancetype)dataWithContentsOfFile:(NSString *)path;
- (BOOL)writeToFile:(NSString *)path
            options:(NSDataWritingOptions)writeOptionsMask
              error:(NSError *_Nullable *_Nullable)errorPtr;
- (instancetype)initWithBytesNoCopy:(void *)bytes length:(NSUInteger)length freeWhenDone:(BOOL)freeWhenDone;
@end

#pragma clang assume_nonnull end
