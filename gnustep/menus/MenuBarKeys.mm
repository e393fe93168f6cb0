// Missing: a key that leads to the menu bar, as of GNUstep GUI 0.29, whose menus the pointer alone opens.

#import "gnustep/menus/MenuBarKeys.h"

#import "gnustep/menus/TNMenuTracking.h"

namespace {

NSMenuView *menuBarIn(NSView *view) {
    for (NSView *inner in [view subviews]) {
        if ([inner isKindOfClass:[NSMenuView class]] && [(NSMenuView *)inner isHorizontal]) {
            return (NSMenuView *)inner;
        }
    }
    return nil;
}

} // namespace

BOOL TNIsMenuBarKey(NSEvent *event) {
    NSString *characters = [event type] == NSKeyDown ? [event charactersIgnoringModifiers] : nil;
    const unichar key = [characters length] == 1 ? [characters characterAtIndex:0] : 0;
    const NSUInteger modifiers =
        [event modifierFlags] & (NSControlKeyMask | NSShiftKeyMask | NSCommandKeyMask | NSAlternateKeyMask);
    return (key == NSF10FunctionKey && modifiers == 0) ||
           (key == NSF2FunctionKey && modifiers == NSControlKeyMask);
}

BOOL TNOpenMenuBarByKey(NSEvent *event) {
    if (!TNIsMenuBarKey(event)) {
        return NO;
    }
    NSWindow *window = [event window];
    NSMenuView *bar = menuBarIn([[window contentView] superview]);
    if (!bar || [[bar menu] numberOfItems] == 0) {
        return NO;
    }
    TNMenuTracking tracking(window);
    tracking.openFromBar(bar, 0);
    tracking.run();
    return YES;
}
