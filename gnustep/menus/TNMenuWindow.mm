// Part of TNMenuTracking.mm, where GNUstep GUI 0.29 falls short: the place of an open menu on the screen.
// GNUstep's menus are as high as their items need, also beyond the screen.

#import "gnustep/menus/TNMenuWindow.h"

#import "TNConstants.h"
#import "gnustep/menus/TNMenuView.h"
#import "gnustep/start/LayoutDirection.h"

#include <algorithm>
#include <memory>

@implementation TNMenuWindow

- (instancetype)initWithMenu:(NSMenu *)menu {
    self = [super initWithContentRect:NSMakeRect(0, 0, 100, 100)
                            styleMask:NSWindowStyleMaskBorderless
                              backing:NSBackingStoreBuffered
                                defer:YES];
    if (self) {
        _shownMenu = [menu retain];
        _view = [[[TNMenuView alloc] initWithFrame:NSMakeRect(0, 0, 100, 100)] autorelease];
        _view->menu = menu;
        _view->rows = std::make_unique<TNMenuRows>(menu);
        _view->highlighted = -1;
        [self setContentView:_view];
        [self setReleasedWhenClosed:NO];
        [self setLevel:NSPopUpMenuWindowLevel];
        [self setExcludedFromWindowsMenu:YES];
    }
    return self;
}

- (void)dealloc {
    [_shownMenu release];
    [super dealloc];
}

- (BOOL)canBecomeKeyWindow {
    return NO;
}

- (NSMenu *)shownMenu {
    return _shownMenu;
}

- (const TNMenuRows &)rows {
    return *_view->rows;
}

- (NSRect)availableAt:(NSPoint)point {
    for (NSScreen *screen in [NSScreen screens]) {
        if (NSMouseInRect(point, [screen frame], NO)) {
            return [screen visibleFrame];
        }
    }
    return [[NSScreen mainScreen] visibleFrame];
}

- (void)showAt:(NSPoint)corner {
    const NSRect available = [self availableAt:corner];
    const NSSize wanted = [self rows].size();
    const NSSize size =
        NSMakeSize(std::min(wanted.width, NSWidth(available)), std::min(wanted.height, NSHeight(available)));
    const CGFloat left = std::clamp(TNReadsFromRightToLeft() ? corner.x - size.width : corner.x,
        NSMinX(available), std::max(NSMinX(available), NSMaxX(available) - size.width));
    const CGFloat bottom = std::clamp(corner.y - size.height, NSMinY(available),
        std::max(NSMinY(available), NSMaxY(available) - size.height));
    [self setFrame:NSMakeRect(left, bottom, size.width, size.height) display:NO];
    [self orderFrontRegardless];
    [self display];
}

- (void)showBesideRow:(NSInteger)row of:(TNMenuWindow *)parent {
    constexpr CGFloat overlap = 3;
    const NSRect item = [parent screenRectOfRow:row];
    const CGFloat top = NSMaxY(item) + TNMenuRows::padding;
    const NSRect shown = [parent frame];
    const NSRect available = [self availableAt:shown.origin];
    const CGFloat width = [self rows].size().width;
    const NSRect behind =
        TNPlaceByDirection(NSMakeRect(NSMaxX(shown) - overlap, NSMinY(shown), width, 0), shown);
    const NSRect before =
        TNPlaceByDirection(NSMakeRect(NSMinX(shown) + overlap - width, NSMinY(shown), width, 0), shown);
    const bool fits = NSMinX(behind) >= NSMinX(available) && NSMaxX(behind) <= NSMaxX(available);
    [self showAt:NSMakePoint(TNLeadingEdge(fits ? behind : before), top)];
}

- (void)scrollRow:(NSInteger)row toScreenY:(CGFloat)y {
    const CGFloat fromTop = NSMaxY([self frame]) - y;
    [_view scrollTo:NSMinY([self rows].rectOf(row)) + NSMinY([_view visibleRows]) - fromTop];
    [self display];
}

/// In the view, which counts from above.
- (NSPoint)placeOf:(NSPoint)screenPoint {
    return NSMakePoint(screenPoint.x - NSMinX([self frame]), NSMaxY([self frame]) - screenPoint.y);
}

- (BOOL)containsScreenPoint:(NSPoint)point {
    return NSMouseInRect(point, [self frame], NO);
}

- (int)scrollDirectionAtScreenPoint:(NSPoint)point {
    return [self containsScreenPoint:point] ? [_view scrollDirectionAt:[self placeOf:point]] : 0;
}

- (NSInteger)rowAtScreenPoint:(NSPoint)point {
    const NSPoint place = [self placeOf:point];
    const NSRect visible = [_view visibleRows];
    if (![self containsScreenPoint:point] || !NSMouseInRect(place, visible, YES)) {
        return -1;
    }
    return [self rows].rowAt(place.y - NSMinY(visible) + _view->offset);
}

- (NSRect)screenRectOfRow:(NSInteger)row {
    const NSRect place = [_view placeOfRow:row];
    return NSMakeRect(
        NSMinX([self frame]), NSMaxY([self frame]) - NSMaxY(place), NSWidth([self frame]), NSHeight(place));
}

- (NSInteger)highlightedRow {
    return _view->highlighted;
}

- (void)highlightRow:(NSInteger)row {
    if (row == _view->highlighted) {
        return;
    }
    _view->highlighted = row;
    if (row >= 0) {
        [_view scrollToRow:row];
    }
    [self display];
}

- (void)scrollBy:(CGFloat)distance {
    [_view scrollTo:_view->offset + distance];
    [self display];
}

@end
