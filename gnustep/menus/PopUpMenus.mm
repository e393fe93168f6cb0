// Missing: menus that pop up where a program wants them, as of GNUstep GUI 0.29, which has a method of a
// similar name that shows nothing. And context menus and those of the menu bar take the way of
// TNMenuTracking.mm.

#import <AppKit/AppKit.h>

#import "TNAdditions.h"
#import "gnustep/menus/TNMenuTracking.h"
#import "gnustep/runtime/MethodReplacement.h"

namespace {

using MouseDown = void (*)(id self, SEL command, NSEvent *event);
MouseDown nativeMouseDown = nullptr;

void popUpContextMenu(id, SEL, NSMenu *menu, NSEvent *event, NSView *view, NSFont *) {
    NSWindow *window = [event window] ? [event window] : [view window];
    if ([menu numberOfItems] > 0 || [[menu delegate] respondsToSelector:@selector(menuNeedsUpdate:)]) {
        TNMenuTracking tracking(window);
        tracking.openAt(menu, [window convertBaseToScreen:[event locationInWindow]]);
        tracking.run();
    }
}

/// That of a menu bar in a window opens the menu of the item that is pressed.
void mouseDown(id self, SEL command, NSEvent *event) {
    if (![self isHorizontal]) {
        nativeMouseDown(self, command, event);
        return;
    }
    const NSPoint place = [self convertPoint:[event locationInWindow] fromView:nil];
    const NSInteger item = [self indexOfItemAtPoint:place];
    if (item >= 0) {
        TNMenuTracking tracking([self window]);
        tracking.openFromBar(self, item);
        tracking.run();
    }
}

} // namespace

@implementation NSMenu (TNPopUp)

+ (void)load {
    TNReplaceMethod(
        object_getClass(self), @selector(popUpContextMenu:withEvent:forView:withFont:), popUpContextMenu);
}

- (BOOL)popUpMenuPositioningItem:(NSMenuItem *)item atLocation:(NSPoint)location inView:(NSView *)view {
    const NSPoint place =
        view ? [[view window] convertBaseToScreen:[view convertPoint:location toView:nil]] : location;
    NSWindow *captor = view ? [view window] : [NSApp keyWindow];
    TNMenuTracking tracking(captor);
    tracking.openAt(self, place, item);
    return tracking.run();
}

@end

@interface NSMenuView (TNPopUp)
@end

@implementation NSMenuView (TNPopUp)

+ (void)load {
    nativeMouseDown = TNReplaceMethod(self, @selector(mouseDown:), mouseDown);
}

@end
