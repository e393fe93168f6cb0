#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

/// The application itself: what it carries with it, and what the system knows of it and of its extension of
/// the Finder. Implementations: AppKit main bundle, in memory.
class ApplicationBundle {
public:
    virtual ~ApplicationBundle() = default;
    /// The text for `key` in the application's default string table; the key itself when it has none.
    [[nodiscard]] virtual std::string localized(std::string_view key) const = 0;
    /// Where the application is, an absolute path without trailing slash.
    [[nodiscard]] virtual std::string path() const = 0;
    /// Whether there is an extension of the Finder in it.
    [[nodiscard]] virtual bool carriesExtension() const = 0;
    /// The folder of the application's resources, without trailing slash.
    [[nodiscard]] virtual std::string resourceFolder() const = 0;
    /// The folder of the built-in plug-ins, without trailing slash; it need not exist.
    [[nodiscard]] virtual std::string plugInsFolder() const = 0;
    /// The version that a user is shown.
    [[nodiscard]] virtual std::string shortVersion() const = 0;
    /// Whether it is one of the applications that start with the user's session.
    [[nodiscard]] virtual bool isLoginItem() const = 0;
    /// Whether the user has the extension switched on, as far as the system says; only to be asked, like
    /// showing where that is done, on systems that can say (macOS 10.14 and later).
    [[nodiscard]] virtual bool isExtensionEnabled() const = 0;
    virtual void showExtensionManagementInterface() = 0;
};

} // namespace tarnwick
