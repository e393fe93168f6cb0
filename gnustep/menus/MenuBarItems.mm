// Wrong: the places of the items of a menu bar, as of GNUstep GUI 0.29: their titles begin at the very edge
// of what is marked and stand close together, and the first is at the left in whatever direction one reads.

#import <AppKit/AppKit.h>

#import "gnustep/runtime/MethodReplacement.h"
#import "gnustep/start/LayoutDirection.h"

namespace {

/// At each side of a title.
constexpr float padding = 7;

using SetHorizontal = void (*)(id self, SEL command, BOOL isHorizontal);
using RectOfItem = NSRect (*)(id self, SEL command, NSInteger index);
using TitleRect = NSRect (*)(id self, SEL command, NSRect bounds);
SetHorizontal nativeSetHorizontal = nullptr;
RectOfItem nativeRectOfItem = nullptr;
TitleRect nativeTitleRect = nullptr;

void setHorizontal(id self, SEL command, BOOL isHorizontal) {
    nativeSetHorizontal(self, command, isHorizontal);
    if (isHorizontal) {
        [self setHorizontalEdgePadding:padding];
    }
}

/// What draws the items, and what looks for the one at a point, ask for this.
NSRect rectOfItem(id self, SEL command, NSInteger index) {
    const NSRect place = nativeRectOfItem(self, command, index);
    return [self isHorizontal] ? TNPlaceByDirection(place, [self bounds]) : place;
}

NSRect titleRect(id self, SEL command, NSRect bounds) {
    const NSRect place = nativeTitleRect(self, command, bounds);
    return [[self menuView] isHorizontal] ? NSInsetRect(place, padding, 0) : place;
}

} // namespace

@interface NSMenuView (TNMenuBarItems)
@end

@implementation NSMenuView (TNMenuBarItems)

+ (void)load {
    nativeSetHorizontal = TNReplaceMethod(self, @selector(setHorizontal:), setHorizontal);
    nativeRectOfItem = TNReplaceMethod(self, @selector(rectOfItemAtIndex:), rectOfItem);
}

@end

@interface NSMenuItemCell (TNMenuBarItems)
@end

@implementation NSMenuItemCell (TNMenuBarItems)

+ (void)load {
    nativeTitleRect = TNReplaceMethod(self, @selector(titleRectForBounds:), titleRect);
}

@end
