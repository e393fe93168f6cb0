// Wrong: windows drawn larger by `GSScaleFactor`, as of GNUstep GUI 0.29: texts are laid out for one size and
// drawn in another, so that letters meet, and menus and panels have the size of one and the content of the
// other. Here all windows are as large as they say.

#import <AppKit/AppKit.h>

#import "gnustep/runtime/MethodReplacement.h"

namespace {

CGFloat scaleFactor(id, SEL) {
    return 1;
}

} // namespace

@interface NSScreen (TNScaleFactor)
@end

@implementation NSScreen (TNScaleFactor)

+ (void)load {
    TNReplaceMethod(self, @selector(userSpaceScaleFactor), scaleFactor);
}

@end
