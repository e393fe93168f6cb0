// Wrong: the moment at which a window gets the menu bar, as of GNUstep GUI 0.29, which shows the windows of a
// program that starts without it, and then makes them higher and draws them anew; and a window that is made
// later never gets one. Here it is there before the window is first shown.

#import <AppKit/AppKit.h>
#import <GNUstepGUI/GSTheme.h>

#import "gnustep/runtime/MethodReplacement.h"

namespace {

using OrderWindow = void (*)(id self, SEL command, NSWindowOrderingMode place, NSInteger other);
OrderWindow nativeOrderWindow = nullptr;

/// Of those that would get it later; a window itself says that it can be the main one only once it is shown.
bool lacksMenu(NSWindow *window) {
    const bool canBeMain = ![window isKindOfClass:[NSPanel class]] &&
                           ([window styleMask] & (NSTitledWindowMask | NSResizableWindowMask)) != 0;
    return canBeMain && ![window menu] &&
           NSInterfaceStyleForKey(@"NSMenuInterfaceStyle", nil) == NSWindows95InterfaceStyle;
}

void orderWindow(id self, SEL command, NSWindowOrderingMode place, NSInteger other) {
    NSMenu *menu = [NSApp mainMenu];
    if (place != NSWindowOut && menu && lacksMenu(self)) {
        [[GSTheme theme] updateMenu:menu forWindow:self];
    }
    nativeOrderWindow(self, command, place, other);
}

} // namespace

@interface NSWindow (TNWindowMenus)
@end

@implementation NSWindow (TNWindowMenus)

+ (void)load {
    nativeOrderWindow = TNReplaceMethod(self, @selector(orderWindow:relativeTo:), orderWindow);
}

@end
