// Missing: `viewDidLoad` of NSViewController, as of GNUstep GUI 0.29. Sent when a controller gets its first
// view, from an interface file or by `setView:`.

#import "TNAdditions.h"

#import "gnustep/runtime/MethodReplacement.h"

namespace {

using SetView = void (*)(id self, SEL command, NSView *view);
SetView nativeSetView = nullptr;

bool hasView(id controller) {
    // Asking for the view would load it.
    Ivar variable = class_getInstanceVariable([NSViewController class], "view");
    return object_getIvar(controller, variable) != nil;
}

void setView(id self, SEL command, NSView *view) {
    const bool isFirst = view && !hasView(self);
    nativeSetView(self, command, view);
    if (isFirst) {
        [self viewDidLoad];
    }
}

} // namespace

@implementation NSViewController (TNViewDidLoad)

+ (void)load {
    nativeSetView = TNReplaceMethod(self, @selector(setView:), setView);
}

- (void)viewDidLoad {
}

@end
