#pragma once

#include <string_view>

namespace tarnwick {

/// The applications of the session by bundle identifier.
/// Implementations: AppKit running applications, in memory.
class RunningApplications {
public:
    virtual ~RunningApplications() = default;
    [[nodiscard]] virtual bool isRunning(std::string_view bundleIdentifier) const = 0;
    /// Asks every running copy to terminate, in order, and does not wait.
    virtual void terminateAll(std::string_view bundleIdentifier) = 0;
};

} // namespace tarnwick
