#include "app/ApplicationDelegate.h"

#include "app/ApplicationWindow.h"
#include "platform/DistributedNotifications.h"
#include "platform/Ports.h"
#include "platform/PreferenceStore.h"
#include "platform/Process.h"
#include "platform/SystemLog.h"
#include "ui/Colour.h"

#include <string>

namespace tarnwick {
namespace {

/// Single-precision components, widened.
constexpr Colour darkBackground{0.11F, 0.12F, 0.13F, 1.0};
constexpr Colour lightBackground{1, 1, 1, 1};

} // namespace

ApplicationDelegate::ApplicationDelegate(const Ports& ports, ApplicationWindow& window)
    : guard_(ports.workspace, ports.bundle, ports.panels, ports.process),
      relaunch_(ports.workspace, ports.bundle, ports.runLoop), window_(window),
      notifications_(ports.notifications), preferences_(ports.preferences), process_(ports.process),
      log_(ports.log) {}

void ApplicationDelegate::applicationWillFinishLaunching() {
    if (!guard_.run()) {
        return;
    }
    window_.setMovableByBackground(true);
    window_.setTextBackground();
    notifications_.observe("AppleInterfaceThemeChangedNotification", [this] { darkModeChanged(); });
    relaunch_.run();
    window_.activateApplication();
}

bool ApplicationDelegate::openFile(std::string_view name) {
    log_.write(name);
    return true;
}

void ApplicationDelegate::handleInputSourceChange(std::string_view notificationDescription) {
    log_.write(notificationDescription);
}

void ApplicationDelegate::observeValue(std::string_view keyPath, std::string_view newValueDescription) {
    log_.write(std::string(keyPath).append("\uFF1A").append(newValueDescription));
}

void ApplicationDelegate::darkModeChanged() {
    const auto isDark = process_.isSystemAtLeast(10, 15, 0) &&
                        preferences_.systemWideString("AppleInterfaceStyle").has_value();
    window_.setBackground(isDark ? darkBackground : lightBackground);
}

} // namespace tarnwick
