#pragma once

#import <AppKit/AppKit.h>

#import "gnustep/menus/TNMenuWindow.h"

#include <vector>

/// A menu that is open and the submenus that are open from it, the menu bar that it may hang at, and the mark
/// that the keyboard moves.
class TNOpenMenus {
public:
    TNOpenMenus() = default;
    ~TNOpenMenus();
    TNOpenMenus(const TNOpenMenus &) = delete;
    TNOpenMenus &operator=(const TNOpenMenus &) = delete;

    /// With that upper corner there at which reading begins, or with that of one of its items.
    void openAt(NSMenu *menu, NSPoint corner, NSMenuItem *positioned);
    /// The menu of an item of a menu bar. `back` and `openMarked` then go from menu to menu.
    void openFromBar(NSMenuView *bar, NSInteger item);
    /// False when the point is on no item of the bar but, perhaps, the one whose menu is open.
    bool openOtherBarItemAt(NSPoint point);
    /// In place of all that is open from the menu at that place. A row without a submenu is only marked.
    void openSubmenu(std::size_t depth, NSInteger row);
    /// Closes the latest ones, so that so many are left.
    void closeBelow(std::size_t count);
    void closeAll();

    [[nodiscard]] std::size_t count() const { return open_.size(); }
    [[nodiscard]] TNMenuWindow *operator[](std::size_t depth) const { return open_[depth]; }
    [[nodiscard]] NSMenuItem *itemAt(std::size_t depth, NSInteger row) const;
    /// How many of the open menus the point is in, from the first one; 0 for none.
    [[nodiscard]] std::size_t depthAt(NSPoint point) const;
    [[nodiscard]] NSInteger barItemAt(NSPoint point) const;

    /// The place of the open menu that the keyboard works in.
    [[nodiscard]] std::size_t marked() const;
    void moveMark(int step);
    /// To the first row for 1, to the last for -1.
    void markEnd(int step);
    /// The submenu of the marked row; without one, the next menu of the bar.
    void openMarked();
    void back();

private:
    void open(NSMenu *menu);
    void openBarItem(NSInteger item);

    NSMenuView *bar_ = nil;
    std::vector<TNMenuWindow *> open_;
};
