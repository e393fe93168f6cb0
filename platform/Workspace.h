#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarnwick {

/// Opening things in other applications; failures are not reported.
/// Implementations: AppKit workspace, in memory.
class Workspace {
public:
    virtual ~Workspace() = default;
    /// Opens an address in its default handler.
    virtual void openURL(std::string_view address) = 0;
    virtual void launchApplication(const std::string& path) = 0;
    /// Where the preferred copy of an application is; nothing when none is known.
    [[nodiscard]] virtual std::optional<std::string> applicationPath(
        std::string_view bundleIdentifier) const = 0;
    /// From now on the settings controller's `appChanged` is told when an application is activated or
    /// deactivated.
    virtual void observeApplicationChanges() = 0;
};

} // namespace tarnwick
