// Wrong: menus that are open, as of GNUstep GUI 0.29. They take no keys, not even Escape; a submenu of a
// context menu hangs at its parent's top, and the first click in it is ignored; and one of thousands of items
// leaves the screen. Here menus have windows of their own, and events are followed anew.

#import "gnustep/menus/TNMenuTracking.h"

#import "TNConstants.h"
#import "gnustep/menus/TNMenuTip.h"

#include <cmath>

namespace {

/// A pointer that has moved no farther is still where it was pressed.
constexpr CGFloat clickDistance = 4;
constexpr NSTimeInterval submenuDelay = 0.15;
constexpr NSTimeInterval tipDelay = 0.8;
constexpr NSTimeInterval scrollPeriod = 0.04;
constexpr CGFloat scrollStep = 24;
constexpr int pageRows = 10;

NSTimeInterval now() {
    return [NSDate timeIntervalSinceReferenceDate];
}

NSPoint screenPlaceOf(NSEvent *event) {
    return [event window] ? [[event window] convertBaseToScreen:[event locationInWindow]]
                          : [event locationInWindow];
}

} // namespace

/// What windows have of their own, without saying so.
@interface NSWindow (TNPrivateMethods)
- (void)_captureMouse:(id)sender;
- (void)_releaseMouse:(id)sender;
@end

TNMenuTracking::TNMenuTracking(NSWindow *captor)
    : captor_(captor), start_([NSEvent mouseLocation]), pointer_(start_) {}

TNMenuTracking::~TNMenuTracking() {
    hideTip();
    closeBelow(0);
}

void TNMenuTracking::open(NSMenu *menu) {
    // Asks the delegate for its items, and whether each is enabled.
    [menu update];
    id delegate = [menu delegate];
    if ([delegate respondsToSelector:@selector(menuWillOpen:)]) {
        [delegate menuWillOpen:menu];
    }
    open_.push_back([[TNMenuWindow alloc] initWithMenu:menu]);
    resting_ = {};
}

void TNMenuTracking::openAt(NSMenu *menu, NSPoint upperLeft, NSMenuItem *positioned) {
    open(menu);
    const NSInteger row = positioned ? [menu indexOfItem:positioned] : -1;
    if (row < 0) {
        [open_.back() showAt:upperLeft];
        return;
    }
    const CGFloat above = NSMinY([open_.back() rows].rectOf(row));
    [open_.back() showAt:NSMakePoint(upperLeft.x, upperLeft.y + above)];
    [open_.back() scrollRow:row toScreenY:upperLeft.y];
}

void TNMenuTracking::openFromBar(NSMenuView *bar, NSInteger item) {
    bar_ = bar;
    openBarItem(item);
}

void TNMenuTracking::openBarItem(NSInteger item) {
    closeBelow(0);
    [bar_ setHighlightedItemIndex:item];
    NSMenu *submenu = item >= 0 ? [[[bar_ menu] itemAtIndex:item] submenu] : nil;
    if (submenu) {
        const NSRect rect = [bar_ convertRect:[bar_ rectOfItemAtIndex:item] toView:nil];
        openAt(submenu, [[bar_ window] convertBaseToScreen:rect.origin]);
    }
    [[bar_ window] displayIfNeeded];
}

void TNMenuTracking::openSubmenu(std::size_t depth, NSInteger row) {
    closeBelow(depth + 1);
    [open_[depth] highlightRow:row];
    NSMenuItem *item = itemAt(depth, row);
    if ([item isEnabled] && [[item submenu] numberOfItems] > 0) {
        open([item submenu]);
        [open_.back() showBesideRow:row of:open_[depth]];
    }
}

/// The latest ones go, so that so many are left.
void TNMenuTracking::closeBelow(std::size_t count) {
    while (open_.size() > count) {
        TNMenuWindow *window = open_.back();
        open_.pop_back();
        id delegate = [[window shownMenu] delegate];
        [window close];
        if ([delegate respondsToSelector:@selector(menuDidClose:)]) {
            [delegate menuDidClose:[window shownMenu]];
        }
        [window release];
    }
}

BOOL TNMenuTracking::run() {
    [captor_ _captureMouse:nil];
    while (!isOver_) {
        @autoreleasepool {
            NSEvent *event = [NSApp nextEventMatchingMask:NSAnyEventMask
                                                untilDate:nextLook()
                                                   inMode:NSEventTrackingRunLoopMode
                                                  dequeue:YES];
            if (event) {
                handle(event);
            } else {
                rest();
            }
        }
    }
    [captor_ _releaseMouse:nil];
    hideTip();
    [chosenMenu_ retain];
    closeBelow(0);
    [bar_ setHighlightedItemIndex:-1];
    [[bar_ window] displayIfNeeded];
    if (!chosenMenu_) {
        return NO;
    }
    [chosenMenu_ performActionForItemAtIndex:chosenRow_];
    [chosenMenu_ release];
    return YES;
}

NSDate *TNMenuTracking::nextLook() const {
    if (scrolls_ != 0) {
        return [NSDate dateWithTimeIntervalSinceNow:scrollPeriod];
    }
    if (!resting_.isDone) {
        return [NSDate dateWithTimeIntervalSinceReferenceDate:resting_.since + submenuDelay];
    }
    if (!tip_ && resting_.since > 0) {
        return [NSDate dateWithTimeIntervalSinceReferenceDate:resting_.since + tipDelay];
    }
    return [NSDate distantFuture];
}

/// Nothing has happened for as long as the next look was to wait.
void TNMenuTracking::rest() {
    if (scrolls_ != 0) {
        const auto depth = depthAt(pointer_);
        if (depth > 0) {
            [open_[depth - 1] scrollBy:scrolls_ * scrollStep];
            scrolls_ = [open_[depth - 1] scrollDirectionAtScreenPoint:pointer_];
        }
    } else if (!resting_.isDone) {
        const auto resting = resting_;
        openSubmenu(resting.depth, resting.row);
        resting_ = {resting.depth, resting.row, resting.since, true};
    } else {
        showTip();
    }
}

void TNMenuTracking::showTip() {
    NSMenuItem *item = itemAt(resting_.depth, resting_.row);
    resting_.since = 0;
    if ([[item toolTip] length] > 0) {
        tip_ = [[TNMenuTip showText:[item toolTip] at:pointer_] retain];
    }
}

void TNMenuTracking::hideTip() {
    [tip_ close];
    [tip_ release];
    tip_ = nil;
}

void TNMenuTracking::handle(NSEvent *event) {
    switch ([event type]) {
    case NSLeftMouseDown:
    case NSRightMouseDown:
    case NSOtherMouseDown:
        pressed(screenPlaceOf(event));
        return;
    case NSLeftMouseUp:
    case NSRightMouseUp:
    case NSOtherMouseUp:
        released(screenPlaceOf(event));
        return;
    case NSMouseMoved:
    case NSLeftMouseDragged:
    case NSRightMouseDragged:
    case NSOtherMouseDragged:
        pointerMoved(screenPlaceOf(event));
        return;
    case NSScrollWheel:
        wheel(event);
        return;
    case NSEventTypeKeyDown:
        key([[event characters] length] > 0 ? [[event characters] characterAtIndex:0] : 0);
        return;
    case NSKeyUp:
    case NSFlagsChanged:
    case NSMouseEntered:
    case NSMouseExited:
    case NSCursorUpdate:
        return;
    default:
        [NSApp sendEvent:event];
        // Another program has come to the front.
        isOver_ = isOver_ || ![NSApp isActive];
    }
}

std::size_t TNMenuTracking::depthAt(NSPoint point) const {
    for (std::size_t depth = open_.size(); depth > 0; --depth) {
        if ([open_[depth - 1] containsScreenPoint:point]) {
            return depth;
        }
    }
    return 0;
}

NSMenuItem *TNMenuTracking::itemAt(std::size_t depth, NSInteger row) const {
    return depth < open_.size() && row >= 0 ? [[open_[depth] shownMenu] itemAtIndex:row] : nil;
}

NSInteger TNMenuTracking::barItemAt(NSPoint point) const {
    if (!bar_) {
        return -1;
    }
    const NSPoint place = [bar_ convertPoint:[[bar_ window] convertScreenToBase:point] fromView:nil];
    return NSMouseInRect(place, [bar_ bounds], [bar_ isFlipped]) ? [bar_ indexOfItemAtPoint:place] : -1;
}

void TNMenuTracking::pointerMoved(NSPoint point) {
    pointer_ = point;
    hideTip();
    hasBegun_ = hasBegun_ || std::hypot(point.x - start_.x, point.y - start_.y) > clickDistance;
    scrolls_ = 0;
    const auto depth = depthAt(point);
    if (depth == 0) {
        pointerMovedOutside(point);
        return;
    }
    TNMenuWindow *window = open_[depth - 1];
    scrolls_ = [window scrollDirectionAtScreenPoint:point];
    const NSInteger row = [window rowAtScreenPoint:point];
    const bool hasSubmenuOpen = depth < open_.size();
    if (hasSubmenuOpen && row == [window highlightedRow]) {
        resting_ = {};
        return;
    }
    if (!hasSubmenuOpen) {
        [window highlightRow:[window rows].mayBeChosen(row) ? row : -1];
    }
    if (row != resting_.row || depth - 1 != resting_.depth || resting_.since == 0) {
        // On the way into a submenu the pointer passes other rows, and does not rest there.
        const bool opens = hasSubmenuOpen || [itemAt(depth - 1, row) hasSubmenu];
        resting_ = {depth - 1, row, now(), !opens};
    }
}

void TNMenuTracking::pointerMovedOutside(NSPoint point) {
    resting_ = {};
    const NSInteger item = barItemAt(point);
    if (item >= 0 && item != [bar_ highlightedItemIndex]) {
        openBarItem(item);
    } else if (!open_.empty()) {
        [open_.back() highlightRow:-1];
    }
}

void TNMenuTracking::pressed(NSPoint point) {
    pointer_ = point;
    hideTip();
    hasBegun_ = true;
    if (depthAt(point) > 0) {
        pointerMoved(point);
        return;
    }
    const NSInteger item = barItemAt(point);
    if (item >= 0 && item != [bar_ highlightedItemIndex]) {
        openBarItem(item);
    } else {
        isOver_ = true;
    }
}

/// The release that belongs to the press that opened the menu chooses nothing unless the pointer has gone
/// somewhere.
void TNMenuTracking::released(NSPoint point) {
    const bool isFirst = !hasBegun_;
    hasBegun_ = true;
    const auto depth = depthAt(point);
    if (isFirst || barItemAt(point) >= 0) {
        return;
    }
    if (depth == 0) {
        isOver_ = true;
        return;
    }
    choose(depth - 1, [open_[depth - 1] rowAtScreenPoint:point]);
}

void TNMenuTracking::choose(std::size_t depth, NSInteger row) {
    if (![open_[depth] rows].mayBeChosen(row)) {
        return;
    }
    if ([itemAt(depth, row) hasSubmenu]) {
        if (open_.size() == depth + 1 || [open_[depth] highlightedRow] != row) {
            openSubmenu(depth, row);
        }
        return;
    }
    chosenMenu_ = [open_[depth] shownMenu];
    chosenRow_ = row;
    isOver_ = true;
}

void TNMenuTracking::wheel(NSEvent *event) {
    const auto depth = depthAt(screenPlaceOf(event));
    if (depth > 0) {
        closeBelow(depth);
        [open_[depth - 1] scrollBy:-3 * scrollStep * [event deltaY]];
    }
}

std::size_t TNMenuTracking::marked() const {
    for (std::size_t depth = open_.size(); depth > 1; --depth) {
        if ([open_[depth - 1] highlightedRow] >= 0) {
            return depth - 1;
        }
    }
    return 0;
}

void TNMenuTracking::moveMark(int step) {
    const auto depth = marked();
    closeBelow(depth + 1);
    TNMenuWindow *window = open_[depth];
    const int direction = step > 0 ? 1 : -1;
    NSInteger row = [window highlightedRow];
    for (int steps = 0; steps < std::abs(step); ++steps) {
        const NSInteger next = [window rows].next(row, direction);
        // A page ends at the end; a single step goes round.
        if (steps > 0 && (next - row) * direction < 0) {
            break;
        }
        row = next;
    }
    [window highlightRow:row];
}

void TNMenuTracking::openMarked() {
    const auto depth = marked();
    const NSInteger row = [open_[depth] highlightedRow];
    if ([itemAt(depth, row) hasSubmenu]) {
        openSubmenu(depth, row);
        if (open_.size() > depth + 1) {
            [open_.back() highlightRow:[open_.back() rows].next(-1, 1)];
        }
    } else if (bar_) {
        openBarItem(([bar_ highlightedItemIndex] + 1) % [[bar_ menu] numberOfItems]);
    }
}

void TNMenuTracking::back() {
    if (open_.size() > 1) {
        closeBelow(open_.size() - 1);
    } else if (bar_) {
        const NSInteger items = [[bar_ menu] numberOfItems];
        openBarItem(([bar_ highlightedItemIndex] + items - 1) % items);
    }
}

void TNMenuTracking::key(unichar character) {
    constexpr unichar escape = 0x1B;
    hideTip();
    resting_ = {};
    if (open_.empty()) {
        isOver_ = isOver_ || character == escape;
        return;
    }
    const auto depth = marked();
    switch (character) {
    case escape:
        isOver_ = true;
        return;
    case NSDownArrowFunctionKey:
        moveMark(1);
        return;
    case NSUpArrowFunctionKey:
        moveMark(-1);
        return;
    case NSPageDownFunctionKey:
        moveMark(pageRows);
        return;
    case NSPageUpFunctionKey:
        moveMark(-pageRows);
        return;
    case NSHomeFunctionKey:
        [open_[depth] highlightRow:[open_[depth] rows].next(-1, 1)];
        return;
    case NSEndFunctionKey:
        [open_[depth] highlightRow:[open_[depth] rows].next(-1, -1)];
        return;
    case NSRightArrowFunctionKey:
        openMarked();
        return;
    case NSLeftArrowFunctionKey:
        back();
        return;
    case NSCarriageReturnCharacter:
    case NSEnterCharacter:
    case ' ':
        if ([itemAt(depth, [open_[depth] highlightedRow]) hasSubmenu]) {
            openMarked();
        } else {
            choose(depth, [open_[depth] highlightedRow]);
        }
        return;
    default:
        return;
    }
}
