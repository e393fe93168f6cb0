// Missing: a place for a view's further properties: the gcc runtime has no associated objects, and categories
// cannot add instance variables.

#import "gnustep/views/ViewAttachments.h"

#import <AppKit/AppKit.h>

#import "gnustep/runtime/MethodReplacement.h"

namespace {

/// Views, not retained, to dictionaries.
NSMapTable *attachments() {
    static NSMapTable *const table = [[NSMapTable alloc]
        initWithKeyOptions:NSPointerFunctionsOpaqueMemory | NSPointerFunctionsOpaquePersonality
              valueOptions:NSPointerFunctionsStrongMemory
                  capacity:0];
    return table;
}

using Deallocate = void (*)(id self, SEL command);
Deallocate nativeDeallocate = nullptr;

void deallocate(id self, SEL command) {
    [attachments() removeObjectForKey:self];
    nativeDeallocate(self, command);
}

} // namespace

id TNAttachment(NSView *view, NSString *name) {
    return [[attachments() objectForKey:view] objectForKey:name];
}

void TNSetAttachment(NSView *view, NSString *name, id object) {
    NSMutableDictionary *objects = [attachments() objectForKey:view];
    if (!objects) {
        objects = [NSMutableDictionary dictionary];
        [attachments() setObject:objects forKey:(id)view];
    }
    if (object) {
        [objects setObject:object forKey:name];
    } else {
        [objects removeObjectForKey:name];
    }
}

@interface NSView (TNViewAttachments)
@end

@implementation NSView (TNViewAttachments)

+ (void)load {
    nativeDeallocate = TNReplaceMethod(self, @selector(dealloc), deallocate);
}

@end
