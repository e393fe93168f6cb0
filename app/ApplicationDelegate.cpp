#include "app/ApplicationDelegate.h"

#include "app/InstallGuard.h"
#include "app/ServiceRelaunch.h"
#include "platform/DistributedNotifications.h"
#include "platform/PreferenceStore.h"
#include "platform/SystemLog.h"
#include "platform/SystemVersion.h"

#include <string>

namespace tarnwick {
namespace {

/// Single-precision components, widened.
constexpr Colour darkBackground{0.11F, 0.12F, 0.13F, 1.0};
constexpr Colour lightBackground{1, 1, 1, 1};

} // namespace

void ApplicationDelegate::applicationWillFinishLaunching() {
    if (!runInstallGuard(platform_)) {
        return;
    }
    if (window_) {
        window_->setMovableByBackground(true);
        window_->setTextBackground();
    }
    platform_.notifications.observe("AppleInterfaceThemeChangedNotification", [this] { darkModeChanged(); });
    relaunchService(platform_);
    if (window_) {
        window_->activateApplication();
    }
}

bool ApplicationDelegate::openFile(std::string_view name) {
    platform_.log.write(name);
    return true;
}

void ApplicationDelegate::handleInputSourceChange(std::string_view notificationDescription) {
    platform_.log.write(notificationDescription);
}

void ApplicationDelegate::observeValue(std::string_view keyPath, std::string_view newValueDescription) {
    platform_.log.write(std::string(keyPath).append("\uFF1A").append(newValueDescription));
}

void ApplicationDelegate::darkModeChanged() {
    const auto isDark = platform_.systemVersion.isAtLeast(10, 15, 0) &&
                        platform_.preferences.systemWideString("AppleInterfaceStyle").has_value();
    if (window_) {
        window_->setBackground(isDark ? darkBackground : lightBackground);
    }
}

} // namespace tarnwick
