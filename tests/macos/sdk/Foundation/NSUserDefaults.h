#pragma once

#import "NSObject.h"

#pragma clang assume_nonnull begin

extern "C" NSString *const NSUserDefaultsDidChangeNotification;

@interface NSUserDefaults : NSObject
@property (class, readonly, strong) NSUserDefaults *standardUserDefaults;
- (nullable instancetype)initWithSuiteName:(nullable NSString *)suite;
- (nullable id)objectForKey:(NSString *)key;
- (nullable NSString *)stringForKey:(NSString *)key;
- (BOOL)boolForKey:(NSString *)key;
- (void)setObject:(nullable id)value forKey:(NSString *)key;
- (void)removeObjectForKey:(NSString *)key;
- (void)setBool:(BOOL)value forKey:(NSString *)key;
- (BOOL)synchronize;
- (BOOL)objectIsForcedForKey:(NSString *)key;
@end

#pragma clang assume_nonnull end
