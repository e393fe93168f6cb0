#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

/// The registered copies of an application.
struct RegisteredApplications {
    /// Absolute paths in the platform's order; empty when there is none or no answer.
    std::vector<std::string> paths;
    /// The platform reported an error.
    bool failed = false;
};

/// The platform's register of applications. Implementations: macOS Launch Services, Linux (no copies), in
/// memory.
class LaunchServices {
public:
    virtual ~LaunchServices() = default;
    [[nodiscard]] virtual RegisteredApplications applications(std::string_view bundleIdentifier) const = 0;
};

} // namespace tarnwick
