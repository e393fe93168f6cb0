// Part of TNMenuTracking.mm, where GNUstep GUI 0.29 falls short: a menu, its submenus that are open, and what
// is marked in them. GNUstep hangs a submenu of a context menu at its parent's top.

#import "gnustep/menus/TNOpenMenus.h"

#import "gnustep/start/LayoutDirection.h"

TNOpenMenus::~TNOpenMenus() {
    closeBelow(0);
}

void TNOpenMenus::open(NSMenu *menu) {
    // Asks the delegate for its items, and whether each is enabled.
    [menu update];
    id delegate = [menu delegate];
    if ([delegate respondsToSelector:@selector(menuWillOpen:)]) {
        [delegate menuWillOpen:menu];
    }
    open_.push_back([[TNMenuWindow alloc] initWithMenu:menu]);
}

void TNOpenMenus::openAt(NSMenu *menu, NSPoint corner, NSMenuItem *positioned) {
    open(menu);
    const NSInteger row = positioned ? [menu indexOfItem:positioned] : -1;
    if (row < 0) {
        [open_.back() showAt:corner];
        return;
    }
    const CGFloat above = NSMinY([open_.back() rows].rectOf(row));
    [open_.back() showAt:NSMakePoint(corner.x, corner.y + above)];
    [open_.back() scrollRow:row toScreenY:corner.y];
}

void TNOpenMenus::openFromBar(NSMenuView *bar, NSInteger item) {
    bar_ = bar;
    openBarItem(item);
}

void TNOpenMenus::openBarItem(NSInteger item) {
    closeBelow(0);
    [bar_ setHighlightedItemIndex:item];
    NSMenu *submenu = item >= 0 ? [[[bar_ menu] itemAtIndex:item] submenu] : nil;
    if (submenu) {
        const NSRect rect = [bar_ convertRect:[bar_ rectOfItemAtIndex:item] toView:nil];
        const NSPoint corner = NSMakePoint(TNLeadingEdge(rect), NSMinY(rect));
        openAt(submenu, [[bar_ window] convertBaseToScreen:corner], nil);
    }
    [[bar_ window] displayIfNeeded];
}

void TNOpenMenus::openSubmenu(std::size_t depth, NSInteger row) {
    closeBelow(depth + 1);
    [open_[depth] highlightRow:row];
    NSMenuItem *item = itemAt(depth, row);
    if ([item isEnabled] && [[item submenu] numberOfItems] > 0) {
        open([item submenu]);
        [open_.back() showBesideRow:row of:open_[depth]];
    }
}

void TNOpenMenus::closeBelow(std::size_t count) {
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

std::size_t TNOpenMenus::depthAt(NSPoint point) const {
    for (std::size_t depth = open_.size(); depth > 0; --depth) {
        if ([open_[depth - 1] containsScreenPoint:point]) {
            return depth;
        }
    }
    return 0;
}

NSMenuItem *TNOpenMenus::itemAt(std::size_t depth, NSInteger row) const {
    return depth < open_.size() && row >= 0 ? [[open_[depth] shownMenu] itemAtIndex:row] : nil;
}

NSInteger TNOpenMenus::barItemAt(NSPoint point) const {
    if (!bar_) {
        return -1;
    }
    const NSPoint place = [bar_ convertPoint:[[bar_ window] convertScreenToBase:point] fromView:nil];
    return NSMouseInRect(place, [bar_ bounds], [bar_ isFlipped]) ? [bar_ indexOfItemAtPoint:place] : -1;
}

std::size_t TNOpenMenus::marked() const {
    for (std::size_t depth = open_.size(); depth > 1; --depth) {
        if ([open_[depth - 1] highlightedRow] >= 0) {
            return depth - 1;
        }
    }
    return 0;
}

void TNOpenMenus::moveMark(int step) {
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

void TNOpenMenus::openMarked() {
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

void TNOpenMenus::back() {
    if (open_.size() > 1) {
        closeBelow(open_.size() - 1);
    } else if (bar_) {
        const NSInteger items = [[bar_ menu] numberOfItems];
        openBarItem(([bar_ highlightedItemIndex] + items - 1) % items);
    }
}

void TNOpenMenus::markEnd(int step) {
    TNMenuWindow *window = open_[marked()];
    [window highlightRow:[window rows].next(-1, step)];
}

void TNOpenMenus::closeAll() {
    closeBelow(0);
    [bar_ setHighlightedItemIndex:-1];
    [[bar_ window] displayIfNeeded];
}

bool TNOpenMenus::openOtherBarItemAt(NSPoint point) {
    const NSInteger item = barItemAt(point);
    if (item < 0 || item == [bar_ highlightedItemIndex]) {
        return false;
    }
    openBarItem(item);
    return true;
}
