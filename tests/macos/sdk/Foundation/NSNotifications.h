#pragma once

#import "NSObject.h"

#pragma clang assume_nonnull begin

@class NSOperationQueue;

@interface NSNotification : NSObject <NSCopying>
@property (readonly, copy) NSString *name;
@property (nullable, readonly, retain) id object;
@end

@interface NSNotificationCenter : NSObject
@property (class, readonly, strong) NSNotificationCenter *defaultCenter;
- (void)addObserver:(id)observer
           selector:(SEL)selector
               name:(nullable NSString *)name
             object:(nullable id)object;
- (id<NSObject>)addObserverForName:(nullable NSString *)name
                            object:(nullable id)object
                             queue:(nullable NSOperationQueue *)queue
                        usingBlock:(void (^)(NSNotification *notification))block;
- (void)postNotificationName:(NSString *)name object:(nullable id)object;
- (void)removeObserver:(id)observer;
- (void)removeObserver:(id)observer name:(nullable NSString *)name object:(nullable id)object;
@end

@interface NSDistributedNotificationCenter : NSNotificationCenter
+ (NSDistributedNotificationCenter *)defaultCenter;
@end

@interface NSOperationQueue : NSObject
@property (class, readonly, strong) NSOperationQueue *mainQueue;
@end

#pragma clang assume_nonnull end
