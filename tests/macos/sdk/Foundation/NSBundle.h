#pragma once

#import "NSObject.h"

#pragma clang assume_nonnull begin

@interface NSBundle : NSObject
@property (class, readonly, strong) NSBundle *mainBundle;
@property (readonly, copy) NSURL *bundleURL;
@property (readonly, copy) NSString *bundlePath;
@property (nullable, readonly, copy) NSString *resourcePath;
@property (nullable, readonly, copy) NSString *builtInPlugInsPath;
- (nullable id)objectForInfoDictionaryKey:(NSString *)key;
- (NSString *)localizedStringForKey:(NSString *)key
                              value:(nullable NSString *)value
                              table:(nullable NSString *)table;
@end

#pragma clang assume_nonnull end
