#pragma once

#include "platform/Platform.h"
#include "platform/WindowControls.h"

#include <string_view>

namespace tarnwick {

/// What the application delegate does around the window.
class ApplicationDelegate {
public:
    /// A null window makes the steps that need it do nothing.
    ApplicationDelegate(const Platform& platform, WindowControl* window)
        : platform_(platform), window_(window) {}

    /// The install guard, then: window movable by its background, text background colour, appearance
    /// observer, service relaunch in the background, activation; in this order.
    void applicationWillFinishLaunching();
    /// Closing the settings window quits the application.
    [[nodiscard]] bool applicationShouldTerminateAfterLastWindowClosed() const { return true; }
    /// Logs the name; nothing is opened. Gives true.
    [[nodiscard]] bool openFile(std::string_view name);
    /// Logs the notification's description.
    void handleInputSourceChange(std::string_view notificationDescription);
    /// Logs key path and new value, with a full-width colon between them.
    void observeValue(std::string_view keyPath, std::string_view newValueDescription);
    /// From macOS 10.15 on the dark colour while an interface style is set; white in every other case.
    void darkModeChanged();

private:
    Platform platform_;
    WindowControl* window_;
};

} // namespace tarnwick
