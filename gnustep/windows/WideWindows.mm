// Wrong: where a window goes that is wider than its screen, as of GNUstep GUI 0.29: the side where reading
// begins is beyond the edge. Here it is the other one.

#import <AppKit/AppKit.h>

#import "gnustep/runtime/MethodReplacement.h"
#import "gnustep/start/LayoutDirection.h"

namespace {

using Constrain = NSRect (*)(id self, SEL command, NSRect frame, NSScreen *screen);
Constrain nativeConstrain = nullptr;

NSRect constrain(id self, SEL command, NSRect frame, NSScreen *screen) {
    NSRect result = nativeConstrain(self, command, frame, screen);
    const NSRect room = [screen visibleFrame];
    if (screen && NSWidth(result) > NSWidth(room)) {
        result.origin.x += TNLeadingEdge(room) - TNLeadingEdge(result);
    }
    return result;
}

} // namespace

@interface NSWindow (TNWideWindows)
@end

@implementation NSWindow (TNWideWindows)

+ (void)load {
    nativeConstrain = TNReplaceMethod(self, @selector(constrainFrameRect:toScreen:), constrain);
}

@end
