#pragma once

#include "app/InstallGuard.h"
#include "app/ServiceRelaunch.h"

#include <string_view>

namespace tarnwick {

class ApplicationWindow;
class DistributedNotifications;
class PreferenceStores;
class Process;
class SystemLog;
struct Ports;

/// What the application delegate does around the window.
class ApplicationDelegate {
public:
    ApplicationDelegate(const Ports& ports, ApplicationWindow& window);

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
    InstallGuard guard_;
    ServiceRelaunch relaunch_;
    ApplicationWindow& window_;
    DistributedNotifications& notifications_;
    const PreferenceStores& preferences_;
    const Process& process_;
    SystemLog& log_;
};

} // namespace tarnwick
