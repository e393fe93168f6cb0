#pragma once

#import <CoreFoundation/CoreFoundation.h>
#import <Declaring.h>
#import <objc/objc.h>

#pragma clang assume_nonnull begin

typedef struct _NSZone NSZone;
typedef double NSTimeInterval;

enum : NSInteger { NSNotFound = 0x7fffffffffffffffL };

@protocol NSObject
- (instancetype)retain;
- (oneway void)release;
- (instancetype)autorelease;
- (BOOL)isEqual:(nullable id)object;
- (BOOL)isKindOfClass:(Class)wanted;
@property (readonly, copy) NSString *description;
@end

@protocol NSCopying
- (id)copyWithZone:(nullable NSZone *)zone;
@end

__attribute__((objc_root_class))
@interface NSObject<NSObject>
+ (instancetype)alloc;
+ (Class)class;
- (Class)class;
+ (BOOL)instancesRespondToSelector:(SEL)selector;
- (instancetype)init;
- (void)dealloc;
- (id)copy;
@end

@interface NSObject (NSDelayedPerforming)
- (void)performSelector:(SEL)selector withObject:(nullable id)argument afterDelay:(NSTimeInterval)delay;
- (void)performSelector:(SEL)selector
             withObject:(nullable id)argument
             afterDelay:(NSTimeInterval)delay
                inModes:(NSArray *)modes;
@end
extern "C" NSString *const NSDefaultRunLoopMode;

@interface NSObject (NSKeyValueObserving)
- (void)observeValueForKeyPath:(nullable NSString *)keyPath
                      ofObject:(nullable id)object
                        change:(nullable NSDictionary *)change
                       context:(nullable void *)context;
@end

typedef TN_OPTIONS(NSUInteger, NSKeyValueObservingOptions){NSKeyValueObservingOptionNew = 1};
extern "C" NSString *const NSKeyValueChangeNewKey;

@interface NSObject (NSKeyValueObserverRegistration)
- (void)addObserver:(NSObject *)observer
         forKeyPath:(NSString *)keyPath
            options:(NSKeyValueObservingOptions)options
            context:(nullable void *)context;
@end

__attribute__((objc_exception))
@interface NSException : NSObject<NSCopying>
@property (readonly, copy) NSString *name;
@end

@interface NSError : NSObject <NSCopying>
@end

@interface NSDate : NSObject <NSCopying>
@property (readonly) NSTimeInterval timeIntervalSinceReferenceDate;
- (instancetype)initWithTimeIntervalSinceReferenceDate:(NSTimeInterval)seconds;
@end

extern "C" NSString *NSStringFromClass(Class kind);
extern "C" void NSLog(NSString *format, ...) __attribute__((format(__NSString__, 1, 2)));

#pragma clang assume_nonnull end
