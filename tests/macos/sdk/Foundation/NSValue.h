#pragma once

#import "NSObject.h"

#pragma clang assume_nonnull begin

@interface NSValue : NSObject <NSCopying>
@property (readonly) const char *objCType;
@end

@interface NSNumber : NSValue
@property (readonly) BOOL boolValue;
@property (readonly) double doubleValue;
@property (readonly) long long longLongValue;
@property (readonly) unsigned long long unsignedLongLongValue;
+ (NSNumber *)numberWithBool:(BOOL)value;
+ (NSNumber *)numberWithDouble:(double)value;
+ (NSNumber *)numberWithLongLong:(long long)value;
+ (NSNumber *)numberWithUnsignedLongLong:(unsigned long long)value;
@end

#pragma clang assume_nonnull end
