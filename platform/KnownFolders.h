#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarnwick {

/// A folder's path, or why there is none.
struct FolderResult {
    std::optional<std::string> path;
    /// The platform's description of the failure; empty when there is a path.
    std::string error;
};

/// Where the platform keeps things, as absolute POSIX paths without trailing slash, asked anew at each call.
/// Implementations: AppKit known folders, in memory.
class KnownFolders {
public:
    virtual ~KnownFolders() = default;
    /// The shared folder of an application group; nothing when the platform grants none.
    [[nodiscard]] virtual std::optional<std::string> groupContainer(std::string_view identifier) const = 0;
    /// The user's Application Scripts folder of this application, created when missing.
    [[nodiscard]] virtual FolderResult applicationScripts() = 0;
    /// The user's folder for what need not last.
    [[nodiscard]] virtual std::string temporary() const = 0;
    /// The user's Library folder.
    [[nodiscard]] virtual std::string library() const = 0;
    /// The login name of the current user.
    [[nodiscard]] virtual std::string userName() const = 0;
};

} // namespace tarnwick
