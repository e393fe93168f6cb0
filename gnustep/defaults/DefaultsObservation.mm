// Missing: observation of single keys of NSUserDefaults, as of GNUstep Base 1.28: setting and removing
// objects tells no observer, and a value that is equal to the one there but of another kind, such as the
// number 1 in place of a boolean, is not taken. All typed setters go through these two. Nor does anybody hear
// of what another program has changed in the domain, which synchronising takes over.

#import <Foundation/Foundation.h>

#import "gnustep/defaults/PropertyListValues.h"
#import "gnustep/runtime/MethodReplacement.h"

namespace {

using SetObject = void (*)(id self, SEL command, id value, NSString *key);
using RemoveObject = void (*)(id self, SEL command, NSString *key);

using Synchronize = BOOL (*)(id self, SEL command);

SetObject nativeSetObject = nullptr;
RemoveObject nativeRemoveObject = nullptr;
Synchronize nativeSynchronize = nullptr;

/// Of the standard defaults; a key that was observed once stays here.
NSMutableSet *observedKeys() {
    static NSMutableSet *const keys = [[NSMutableSet alloc] init];
    return keys;
}

NSDictionary *observedValues(id defaults) {
    NSMutableDictionary *values = [NSMutableDictionary dictionary];
    for (NSString *key in observedKeys()) {
        if (id value = [defaults objectForKey:key]) {
            [values setObject:value forKey:key];
        }
    }
    return values;
}

BOOL synchronize(id self, SEL command) {
    NSDictionary *before = observedValues(self);
    const BOOL result = nativeSynchronize(self, command);
    for (NSString *key in [observedKeys() allObjects]) {
        if (!TNIsSamePropertyList([before objectForKey:key], [self objectForKey:key])) {
            // The old value is gone by now; observers are given the new one.
            [self willChangeValueForKey:key];
            [self didChangeValueForKey:key];
        }
    }
    return result;
}

void setObject(id self, SEL command, id value, NSString *key) {
    id before = [self objectForKey:key];
    if (TNIsSamePropertyList(before, value)) {
        // It may stand in another domain than this program's own.
        nativeSetObject(self, command, before, key);
    } else if ([before isEqual:value]) {
        nativeRemoveObject(self, @selector(removeObjectForKey:), key);
        nativeSetObject(self, command, value, key);
    } else {
        [self willChangeValueForKey:key];
        nativeSetObject(self, command, value, key);
        [self didChangeValueForKey:key];
    }
}

void removeObject(id self, SEL command, NSString *key) {
    if (![self objectForKey:key]) {
        nativeRemoveObject(self, command, key);
        return;
    }
    [self willChangeValueForKey:key];
    nativeRemoveObject(self, command, key);
    [self didChangeValueForKey:key];
}

} // namespace

@interface NSUserDefaults (TNObservation)
@end

@implementation NSUserDefaults (TNObservation)

+ (void)load {
    nativeSetObject = TNReplaceMethod(self, @selector(setObject:forKey:), setObject);
    nativeRemoveObject = TNReplaceMethod(self, @selector(removeObjectForKey:), removeObject);
    nativeSynchronize = TNReplaceMethod(self, @selector(synchronize), synchronize);
}

- (void)addObserver:(NSObject *)observer
         forKeyPath:(NSString *)keyPath
            options:(NSKeyValueObservingOptions)options
            context:(void *)context {
    [observedKeys() addObject:keyPath];
    [super addObserver:observer forKeyPath:keyPath options:options context:context];
}

@end
