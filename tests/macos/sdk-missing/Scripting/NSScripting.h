#pragma once

#include <cstdint>

#import <Declaring.h>
#import <Foundation/NSObject.h>

#pragma clang assume_nonnull begin

@class NSString, NSURL;

typedef std::uint32_t OSType;
typedef OSType DescType;
typedef OSType AEEventClass;
typedef OSType AEEventID;
typedef OSType AEKeyword;
typedef std::int16_t AEReturnID;
typedef std::int32_t AETransactionID;

@interface NSAppleEventDescriptor : NSObject
+ (nullable NSAppleEventDescriptor *)descriptorWithDescriptorType:(DescType)type
                                                            bytes:(nullable const void *)bytes
                                                           length:(NSUInteger)length;
+ (NSAppleEventDescriptor *)descriptorWithString:(NSString *)text;
+ (NSAppleEventDescriptor *)appleEventWithEventClass:(AEEventClass)eventClass
                                             eventID:(AEEventID)eventID
                                    targetDescriptor:(nullable NSAppleEventDescriptor *)target
                                            returnID:(AEReturnID)returnID
                                       transactionID:(AETransactionID)transactionID;
- (void)setParamDescriptor:(NSAppleEventDescriptor *)descriptor forKeyword:(AEKeyword)keyword;
@end

@interface NSUserScriptTask : NSObject
- (nullable instancetype)initWithURL:(NSURL *)url error:(NSError *_Nullable *_Nullable)error;
@end

typedef void (^NSUserAppleScriptTaskCompletionHandler)(
    NSAppleEventDescriptor *_Nullable result, NSError *_Nullable error);

@interface NSUserAppleScriptTask : NSUserScriptTask
- (void)executeWithAppleEvent:(nullable NSAppleEventDescriptor *)event
            completionHandler:(nullable NSUserAppleScriptTaskCompletionHandler)handler;
@end

#pragma clang assume_nonnull end
