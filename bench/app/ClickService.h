#pragma once

#import <AppKit/AppKit.h>

#include <functional>
#include <string>

namespace tarnwick::bench {

/// Runs `serve` inside the running application, once `window()` is the key window, then ends the program.
void whenRunning(std::function<NSWindow*()> window, std::function<void()> serve);

/// Prints "ready", then has each line on standard input answered with a printed one, until it ends. The
/// program goes on while it waits for a line, and is at rest when it answers.
void serveLines(const std::function<void(const std::string& line)>& answer);

/// A line "count" is answered with `count()`, any other with a click in the middle of `view()` and a line of
/// two numbers: the microseconds from the click until both preference files have been replaced, and until the
/// window has been drawn again.
void serveClicks(
    const std::function<NSView*()>& view, const std::function<long()>& count = [] { return 0L; });

} // namespace tarnwick::bench
