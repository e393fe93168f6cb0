#pragma once

#import <AppKit/AppKit.h>

#include <functional>

namespace tarnwick::bench {

/// Runs `serve` inside the running application, once `window()` is the key window, then ends the program.
void whenRunning(std::function<NSWindow*()> window, std::function<void()> serve);

/// Prints "ready", then answers each line on standard input, until it ends. A line "count" is answered with
/// `count()`, any other with a click in the middle of `view()` and a line of two numbers: the microseconds
/// from the click until both preference files have been replaced, and until the window has been drawn again.
void serveClicks(
    const std::function<NSView*()>& view, const std::function<long()>& count = [] { return 0L; });

} // namespace tarnwick::bench
