#pragma once

#include <optional>
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

/// The other applications of the user's session: those that run, those that are registered, and opening
/// things in them. Failures of opening are not reported. Implementations: AppKit workspace, in memory.
class Workspace {
public:
    virtual ~Workspace() = default;
    /// Opens an address in its default handler.
    virtual void openURL(std::string_view address) = 0;
    /// Opens a file in the application that the user has for its kind.
    virtual void openFile(const std::string& path) = 0;
    /// Shows a file or folder, selected, in the folder that it lies in.
    virtual void showInFileViewer(const std::string& path) = 0;
    virtual void launchApplication(const std::string& path) = 0;
    /// Where the preferred copy of an application is; nothing when none is known.
    [[nodiscard]] virtual std::optional<std::string> applicationPath(
        std::string_view bundleIdentifier) const = 0;
    [[nodiscard]] virtual RegisteredApplications registeredApplications(
        std::string_view bundleIdentifier) const = 0;
    [[nodiscard]] virtual bool isRunning(std::string_view bundleIdentifier) const = 0;
    /// Asks every running copy to terminate, in order, and does not wait.
    virtual void terminateAll(std::string_view bundleIdentifier) = 0;
};

} // namespace tarnwick
