#pragma once

#import <AppKit/AppKit.h>

#import "gnustep/menus/TNMenuWindow.h"

#include <vector>

/// Follows the pointer and the keyboard through a menu and its submenus until an item is chosen, or none.
class TNMenuTracking {
public:
    /// The window that pointer events anywhere go to meanwhile. It must be on the screen.
    explicit TNMenuTracking(NSWindow *captor);
    ~TNMenuTracking();
    TNMenuTracking(const TNMenuTracking &) = delete;
    TNMenuTracking &operator=(const TNMenuTracking &) = delete;

    /// Opens the menu with its upper left corner there, or with that of one of its items.
    void openAt(NSMenu *menu, NSPoint upperLeft, NSMenuItem *positioned = nil);
    /// Opens the menu of an item of a menu bar. The pointer and the arrow keys then go from menu to menu.
    void openFromBar(NSMenuView *bar, NSInteger item);

    /// Returns when all is closed again, and after the action of the item that was chosen. NO when none was.
    BOOL run();

private:
    /// What the pointer has come upon and rests at: its submenu opens a moment later.
    struct Resting {
        std::size_t depth = 0;
        NSInteger row = -1;
        NSTimeInterval since = 0;
        bool isDone = true;
    };

    void open(NSMenu *menu);
    void openSubmenu(std::size_t depth, NSInteger row);
    void closeBelow(std::size_t count);
    void openBarItem(NSInteger item);
    [[nodiscard]] NSInteger barItemAt(NSPoint point) const;

    void handle(NSEvent *event);
    void pointerMoved(NSPoint point);
    void pointerMovedOutside(NSPoint point);
    void pressed(NSPoint point);
    void released(NSPoint point);
    void wheel(NSEvent *event);
    void key(unichar character);
    void moveMark(int step);
    void openMarked();
    void back();
    void choose(std::size_t depth, NSInteger row);
    void rest();
    void showTip();
    void hideTip();

    /// How many of the open menus the point is in, from the first one; 0 for none.
    [[nodiscard]] std::size_t depthAt(NSPoint point) const;
    /// The place of the open menu that the keyboard works in.
    [[nodiscard]] std::size_t marked() const;
    [[nodiscard]] NSDate *nextLook() const;
    [[nodiscard]] NSMenuItem *itemAt(std::size_t depth, NSInteger row) const;

    NSWindow *captor_;
    NSMenuView *bar_ = nil;
    std::vector<TNMenuWindow *> open_;
    Resting resting_;
    NSPoint start_;
    NSPoint pointer_;
    bool hasBegun_ = false;
    bool isOver_ = false;
    int scrolls_ = 0;
    NSWindow *tip_ = nil;
    NSMenu *chosenMenu_ = nil;
    NSInteger chosenRow_ = -1;
};
