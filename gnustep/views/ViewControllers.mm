// Missing: `viewDidLoad` of NSViewController, as of GNUstep GUI 0.29. Sent when a controller that was asked
// for its view has loaded it, from an interface file or in `loadView`; not for a view that it was just given.

#import "TNAdditions.h"

#import "gnustep/runtime/MethodReplacement.h"

namespace {

using View = NSView *(*)(id self, SEL command);
View nativeView = nullptr;

NSView *view(id self, SEL command) {
    Ivar variable = class_getInstanceVariable([NSViewController class], "view");
    const bool isToLoad = object_getIvar(self, variable) == nil;
    NSView *loaded = nativeView(self, command);
    if (isToLoad && loaded) {
        [self viewDidLoad];
    }
    return loaded;
}

} // namespace

@implementation NSViewController (TNViewDidLoad)

+ (void)load {
    nativeView = TNReplaceMethod(self, @selector(view), view);
}

- (void)viewDidLoad {
}

@end
