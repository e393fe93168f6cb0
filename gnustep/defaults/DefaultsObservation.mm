// Missing: observation of single keys of NSUserDefaults, as of GNUstep Base 1.28: setting and removing
// objects tells no observer, and a value that is equal to the one there but of another kind, such as the
// number 1 in place of a boolean, is not taken. All typed setters go through these two.

#import <Foundation/Foundation.h>

#import "gnustep/defaults/PropertyListValues.h"
#import "gnustep/runtime/MethodReplacement.h"

namespace {

using SetObject = void (*)(id self, SEL command, id value, NSString *key);
using RemoveObject = void (*)(id self, SEL command, NSString *key);

SetObject nativeSetObject = nullptr;
RemoveObject nativeRemoveObject = nullptr;

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
}

@end
