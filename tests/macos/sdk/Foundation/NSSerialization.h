#pragma once

#import "NSObject.h"

#pragma clang assume_nonnull begin

@class NSData;

typedef TN_OPTIONS(NSUInteger, NSPropertyListMutabilityOptions){NSPropertyListImmutable = 0};
typedef NSPropertyListMutabilityOptions NSPropertyListReadOptions;
typedef NSUInteger NSPropertyListWriteOptions;
typedef TN_ENUM(NSUInteger, NSPropertyListFormat){NSPropertyListXMLFormat_v1_0 = 100};

@interface NSPropertyListSerialization : NSObject
+ (nullable id)propertyListWithData:(NSData *)data
                            options:(NSPropertyListReadOptions)options
                             format:(nullable NSPropertyListFormat *)format
                              error:(NSError *_Nullable *_Nullable)error;
+ (nullable NSData *)dataWithPropertyList:(id)list
                                   format:(NSPropertyListFormat)format
                                  options:(NSPropertyListWriteOptions)options
                                    error:(NSError *_Nullable *_Nullable)error;
@end

@interface NSKeyedArchiver : NSObject
+ (NSData *)archivedDataWithRootObject:(id)object TN_DEPRECATED(10.2, 10.14);
@end

@interface NSKeyedUnarchiver : NSObject
+ (nullable id)unarchiveObjectWithData:(NSData *)data TN_DEPRECATED(10.2, 10.14);
@end

#pragma clang assume_nonnull end
