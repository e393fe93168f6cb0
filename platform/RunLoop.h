#pragma once

#include "values/PlistValue.h"

#include <functional>
#include <string>

namespace tarnwick {

/// Time: what the clocks say, and work that is done later. Implementations: macOS dispatch queues, GNUstep
/// run loop, in memory.
class RunLoop {
public:
    virtual ~RunLoop() = default;
    /// Seconds since some moment before the start, of a clock that nobody sets.
    [[nodiscard]] virtual double now() const = 0;
    /// The time of the clock that the user sees.
    [[nodiscard]] virtual PlistDate date() const = 0;
    /// Today's date where the user is, as "2001-12-31".
    [[nodiscard]] virtual std::string today() const = 0;
    /// Runs `work` on the main thread once `seconds` have passed.
    virtual void performAfterDelay(double seconds, std::function<void()> work) = 0;
    /// Runs `work` on the main thread, after what is running now.
    virtual void performOnMainQueue(std::function<void()> work) = 0;
    /// Runs `work` on some other thread, at default priority.
    virtual void performInBackground(std::function<void()> work) = 0;
};

} // namespace tarnwick
