#pragma once

#import <AppKit/AppKit.h>

#import "gnustep/menus/TNOpenMenus.h"

/// Follows the pointer and the keyboard through a menu and its submenus until an item is chosen, or none.
class TNMenuTracking {
public:
    /// The window that pointer events anywhere go to meanwhile. It must be on the screen.
    explicit TNMenuTracking(NSWindow *captor);
    ~TNMenuTracking();
    TNMenuTracking(const TNMenuTracking &) = delete;
    TNMenuTracking &operator=(const TNMenuTracking &) = delete;

    /// Opens the menu with its upper left corner there, or with that of one of its items.
    void openAt(NSMenu *menu, NSPoint upperLeft, NSMenuItem *positioned = nil) {
        menus_.openAt(menu, upperLeft, positioned);
    }
    /// Opens the menu of an item of a menu bar. The pointer and the arrow keys then go from menu to menu.
    void openFromBar(NSMenuView *bar, NSInteger item) { menus_.openFromBar(bar, item); }

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

    void handle(NSEvent *event);
    void pointerMoved(NSPoint point);
    void pointerMovedOutside(NSPoint point);
    void pressed(NSPoint point);
    void released(NSPoint point);
    void wheel(NSEvent *event);
    void key(unichar character);
    void choose(std::size_t depth, NSInteger row);
    void rest();
    void showTip();
    void hideTip();

    [[nodiscard]] NSDate *nextLook() const;

    NSWindow *captor_;
    TNOpenMenus menus_;
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
