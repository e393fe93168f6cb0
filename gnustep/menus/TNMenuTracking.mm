// Wrong: menus that are open, as of GNUstep GUI 0.29. They take no keys, not even Escape; a submenu of a
// context menu hangs at its parent's top, and the first click in it is ignored; and one of thousands of items
// leaves the screen. Here menus have windows of their own, and events are followed anew.

#import "gnustep/menus/TNMenuTracking.h"

#import "TNConstants.h"
#import "gnustep/menus/MenuBarKeys.h"
#import "gnustep/menus/TNMenuTip.h"
#import "gnustep/start/LayoutDirection.h"

#include <cmath>

namespace {

/// A pointer that has moved no farther is still where it was pressed.
constexpr CGFloat clickDistance = 4;
constexpr NSTimeInterval submenuDelay = 0.15;
constexpr NSTimeInterval tipDelay = 0.8;
constexpr NSTimeInterval scrollPeriod = 0.04;
constexpr CGFloat scrollStep = 24;
/// As far as scroll views go.
constexpr CGFloat wheelStep = 10;
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
    menus_.closeAll();
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
        const auto depth = menus_.depthAt(pointer_);
        if (depth > 0) {
            [menus_[depth - 1] scrollBy:scrolls_ * scrollStep];
            scrolls_ = [menus_[depth - 1] scrollDirectionAtScreenPoint:pointer_];
        }
    } else if (!resting_.isDone) {
        const auto resting = resting_;
        menus_.openSubmenu(resting.depth, resting.row);
        resting_ = {resting.depth, resting.row, resting.since, true};
    } else {
        showTip();
    }
}

void TNMenuTracking::showTip() {
    NSMenuItem *item = menus_.itemAt(resting_.depth, resting_.row);
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
        isOver_ = isOver_ || TNIsMenuBarKey(event);
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
        // Another program has come to the front, or the window has gone from the screen.
        isOver_ = isOver_ || ![NSApp isActive] || [captor_ isMiniaturized];
    }
}

void TNMenuTracking::pointerMoved(NSPoint point) {
    pointer_ = point;
    hideTip();
    hasBegun_ = hasBegun_ || std::hypot(point.x - start_.x, point.y - start_.y) > clickDistance;
    scrolls_ = 0;
    const auto depth = menus_.depthAt(point);
    if (depth == 0) {
        pointerMovedOutside(point);
        return;
    }
    TNMenuWindow *window = menus_[depth - 1];
    scrolls_ = [window scrollDirectionAtScreenPoint:point];
    const NSInteger row = [window rowAtScreenPoint:point];
    const bool hasSubmenuOpen = depth < menus_.count();
    if (hasSubmenuOpen && row == [window highlightedRow]) {
        resting_ = {};
        return;
    }
    if (!hasSubmenuOpen) {
        [window highlightRow:[window rows].mayBeChosen(row) ? row : -1];
    }
    if (row != resting_.row || depth - 1 != resting_.depth || resting_.since == 0) {
        // On the way into a submenu the pointer passes other rows, and does not rest there.
        const bool opens = hasSubmenuOpen || [menus_.itemAt(depth - 1, row) hasSubmenu];
        resting_ = {depth - 1, row, now(), !opens};
    }
}

void TNMenuTracking::pointerMovedOutside(NSPoint point) {
    resting_ = {};
    if (!menus_.openOtherBarItemAt(point) && menus_.count() > 0) {
        [menus_[menus_.count() - 1] highlightRow:-1];
    }
}

void TNMenuTracking::pressed(NSPoint point) {
    pointer_ = point;
    hideTip();
    hasBegun_ = true;
    if (menus_.depthAt(point) > 0) {
        pointerMoved(point);
        return;
    }
    resting_ = {};
    isOver_ = !menus_.openOtherBarItemAt(point);
}

/// The release that belongs to the press that opened the menu chooses nothing unless the pointer has gone
/// somewhere.
void TNMenuTracking::released(NSPoint point) {
    const bool isFirst = !hasBegun_;
    hasBegun_ = true;
    const auto depth = menus_.depthAt(point);
    if (isFirst || menus_.barItemAt(point) >= 0) {
        return;
    }
    if (depth == 0) {
        isOver_ = true;
        return;
    }
    choose(depth - 1, [menus_[depth - 1] rowAtScreenPoint:point]);
}

void TNMenuTracking::choose(std::size_t depth, NSInteger row) {
    if (![menus_[depth] rows].mayBeChosen(row)) {
        return;
    }
    if ([menus_.itemAt(depth, row) hasSubmenu]) {
        if (menus_.count() == depth + 1 || [menus_[depth] highlightedRow] != row) {
            menus_.openSubmenu(depth, row);
            resting_ = {};
        }
        return;
    }
    chosenMenu_ = [menus_[depth] shownMenu];
    chosenRow_ = row;
    isOver_ = true;
}

void TNMenuTracking::wheel(NSEvent *event) {
    const auto depth = menus_.depthAt(screenPlaceOf(event));
    if (depth > 0) {
        menus_.closeBelow(depth);
        [menus_[depth - 1] scrollBy:-wheelStep * [event deltaY]];
    }
}

void TNMenuTracking::key(unichar character) {
    constexpr unichar escape = 0x1B;
    hideTip();
    resting_ = {};
    if (menus_.count() == 0) {
        isOver_ = isOver_ || character == escape;
        return;
    }
    const auto depth = menus_.marked();
    switch (character) {
    case escape:
        isOver_ = true;
        return;
    case NSDownArrowFunctionKey:
        menus_.moveMark(1);
        return;
    case NSUpArrowFunctionKey:
        menus_.moveMark(-1);
        return;
    case NSPageDownFunctionKey:
        menus_.moveMark(pageRows);
        return;
    case NSPageUpFunctionKey:
        menus_.moveMark(-pageRows);
        return;
    case NSHomeFunctionKey:
        menus_.markEnd(1);
        return;
    case NSEndFunctionKey:
        menus_.markEnd(-1);
        return;
    case NSRightArrowFunctionKey:
    case NSLeftArrowFunctionKey:
        if ((character == NSLeftArrowFunctionKey) == TNReadsFromRightToLeft()) {
            menus_.openMarked();
        } else {
            menus_.back();
        }
        return;
    case NSCarriageReturnCharacter:
    case NSEnterCharacter:
    case ' ':
        if ([menus_.itemAt(depth, [menus_[depth] highlightedRow]) hasSubmenu]) {
            menus_.openMarked();
        } else {
            choose(depth, [menus_[depth] highlightedRow]);
        }
        return;
    default:
        return;
    }
}
