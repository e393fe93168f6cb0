#pragma once

#include "platform/Platform.h"

namespace tarnwick {

class LocalPreferences;

/// The application's dealings with its Finder extension.
class FinderExtension {
public:
    FinderExtension(const Platform& platform, LocalPreferences& local) : platform_(platform), local_(local) {}

    /// Before macOS 10.14 true without asking.
    [[nodiscard]] bool isExtensionEnabled() const;
    /// A modal prompt; its only button opens the management screen.
    void promptToEnableExtension();
    /// The extension management screen; before macOS 10.14 the top level of the system settings.
    void openSystemPreferences();

    /// Unless the extension is enabled and the prompt was shown once, queues the prompt on the main queue;
    /// when it is closed, "ShownEnableExtensionAlert" is set in `LocalPreferences`.
    void checkAtStart();

private:
    Platform platform_;
    LocalPreferences& local_;
};

} // namespace tarnwick
