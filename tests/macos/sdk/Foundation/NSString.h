#pragma once

#import "NSObject.h"
#import "NSRange.h"

#pragma clang assume_nonnull begin

@class NSData;

typedef unsigned short unichar;
typedef NSUInteger NSStringEncoding;
enum : NSStringEncoding { NSUTF8StringEncoding = 4 };

@interface NSString : NSObject <NSCopying>
@property (readonly) NSUInteger length;
@property (readonly) const char *fileSystemRepresentation;
@property (readonly, copy) NSString *pathExtension;
- (unichar)characterAtIndex:(NSUInteger)index;
- (void)getCharacters:(unichar *)buffer range:(NSRange)range;
- (nullable instancetype)initWithBytes:(const void *)bytes
                                length:(NSUInteger)length
                              encoding:(NSStringEncoding)encoding;
+ (instancetype)stringWithCharacters:(const unichar *)characters length:(NSUInteger)length;
+ (instancetype)stringWithFormat:(NSString *)format, ... __attribute__((format(__NSString__, 1, 2)));
- (BOOL)isEqualToString:(NSString *)other;
- (NSString *)stringByAppendingString:(NSString *)other;
- (NSString *)stringByAppendingPathComponent:(NSString *)other;
@end

@interface NSMutableString : NSString
+ (instancetype)string;
- (void)appendString:(NSString *)other;
- (void)deleteCharactersInRange:(NSRange)range;
@end

@interface NSAttributedString : NSObject <NSCopying>
- (instancetype)initWithString:(NSString *)text attributes:(nullable NSDictionary *)attributes;
@end

#pragma clang assume_nonnull end
