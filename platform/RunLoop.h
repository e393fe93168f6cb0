#pragma once

#include <functional>

namespace tarnwick {

/// Deferred work. Implementations: macOS dispatch queues, GNUstep run loop, in memory.
class RunLoop {
public:
    virtual ~RunLoop() = default;
    /// Runs `work` on the main thread once `seconds` have passed.
    virtual void performAfterDelay(double seconds, std::function<void()> work) = 0;
    /// Runs `work` on the main thread, after what is running now.
    virtual void performOnMainQueue(std::function<void()> work) = 0;
    /// Runs `work` on some other thread, at default priority.
    virtual void performInBackground(std::function<void()> work) = 0;
};

} // namespace tarnwick
