// Wrong: scrollers that hide themselves, as of GNUstep GUI 0.29, which also shows a horizontal one that the
// view was told not to have, when a table is too wide for a moment. In windows of certain heights that one
// and the vertical one then brought each other in and out until the program crashed.

#import "gnustep/runtime/MethodReplacement.h"
#import "gnustep/views/ViewAttachments.h"

#import <AppKit/AppKit.h>

namespace {

using Reflect = void (*)(id self, SEL command, NSClipView *clip);
using SetHas = void (*)(id self, SEL command, BOOL has);
Reflect nativeReflect = nullptr;
SetHas nativeSetHas = nullptr;

NSString *const wanted = @"TNHorizontalScroller";

/// How many views GNUstep is just bringing the scrollers of in line with what they show.
int reflected = 0;

void reflect(id self, SEL command, NSClipView *clip) {
    ++reflected;
    nativeReflect(self, command, clip);
    --reflected;
}

void setHas(id self, SEL command, BOOL has) {
    if (reflected == 0) {
        TNSetAttachment(self, wanted, [NSNumber numberWithBool:has]);
    } else if (has && ![TNAttachment(self, wanted) boolValue]) {
        return;
    }
    nativeSetHas(self, command, has);
}

} // namespace

@interface NSScrollView (TNHidingScrollers)
@end

@implementation NSScrollView (TNHidingScrollers)

+ (void)load {
    nativeReflect = TNReplaceMethod(self, @selector(reflectScrolledClipView:), reflect);
    nativeSetHas = TNReplaceMethod(self, @selector(setHasHorizontalScroller:), setHas);
}

@end
