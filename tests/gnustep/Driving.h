#pragma once

#import <AppKit/AppKit.h>

#include <functional>

namespace tarnwick::probe {

/// Handles events until the condition holds or ten seconds have passed.
void waitUntil(const std::function<bool()> &condition);
/// Handles what is queued and what that deferred.
void settle();

/// Queues an event; the place is the window's.
void postMouse(NSWindow *window, NSEventType type, NSPoint place, int clicks, NSUInteger modifiers = 0);
/// Presses and lets go of a key and handles that.
void postKey(NSWindow *window, NSString *characters);

} // namespace tarnwick::probe

/// Ends a drag, whose loop lets nothing else run, from a timer.
@interface TNLettingGo : NSObject {
@public
    std::function<bool()> condition;
    std::function<void()> letGo;
    int patience;
}
- (void)wait;
@end
