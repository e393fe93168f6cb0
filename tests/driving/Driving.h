#pragma once

#import <AppKit/AppKit.h>

#include <functional>

/// Drives a window with mouse and keyboard events, which go through the application's own queue. Places are
/// the window's.
namespace tarnwick::driving {

/// Handles one event, waiting for it no longer than `seconds`; false when there was none.
bool pump(double seconds);
/// Handles what is queued and what that deferred.
void settle();
/// Handles events until the condition holds; false when ten seconds have passed without.
bool waitUntil(const std::function<bool()> &condition);

/// From `view` inwards, hidden ones and what is in them left out, the first view that `matches`; nil without
/// one.
[[nodiscard]] NSView *firstView(NSView *view, const std::function<bool(NSView *)> &matches);
[[nodiscard]] NSPoint middleOf(NSView *view);
[[nodiscard]] NSEvent *mouseEvent(
    NSWindow *window, NSEventType type, NSPoint place, int clicks = 1, NSUInteger modifiers = 0);

// These queue events and return.
void postMouse(NSWindow *window, NSEventType type, NSPoint place, int clicks = 1, NSUInteger modifiers = 0);
void postClicks(NSWindow *window, NSPoint place, int clicks = 1, NSUInteger modifiers = 0);
/// A key goes down and up.
void postKey(NSWindow *window, NSString *characters, NSUInteger modifiers = 0);

// These settle as well.
void click(NSWindow *window, NSPoint place, int clicks = 1, NSUInteger modifiers = 0);
/// In its middle.
void click(NSView *view);
void press(NSWindow *window, NSString *characters, NSUInteger modifiers = 0);
/// A key for each character.
void type(NSWindow *window, NSString *text);
/// Presses the button, moves in small steps, lets go.
void drag(NSWindow *window, NSPoint start, NSPoint end);

} // namespace tarnwick::driving
