// Wrong: which window is the last, as of GNUstep GUI 0.29, which counts what is on the screen: a menu or
// panel that closed beside the minimised window ended the program. Here such are never the last one.

#import <AppKit/AppKit.h>

#import "gnustep/runtime/MethodReplacement.h"

namespace {

using WindowWillClose = void (*)(id self, SEL command, NSNotification *notification);
WindowWillClose nativeWindowWillClose = nullptr;

void windowWillClose(id self, SEL command, NSNotification *notification) {
    if ([[notification object] canBecomeMainWindow]) {
        nativeWindowWillClose(self, command, notification);
    }
}

} // namespace

@interface NSApplication (TNLastWindow)
@end

@implementation NSApplication (TNLastWindow)

+ (void)load {
    // GNUstep's own, which is told of every window that closes.
    nativeWindowWillClose = TNReplaceMethod(self, @selector(_windowWillClose:), windowWillClose);
}

@end
