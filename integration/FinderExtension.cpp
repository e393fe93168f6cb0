#include "integration/FinderExtension.h"

#include "integration/Links.h"
#include "platform/ApplicationBundle.h"
#include "platform/Panels.h"
#include "platform/Process.h"
#include "platform/RunLoop.h"
#include "platform/Workspace.h"
#include "prefs/LocalPreferences.h"
#include "prefs/PreferenceKeys.h"

namespace tarnwick {
namespace {

/// The first system that lets an application ask about its extension and show where to enable it.
bool hasManagementInterface(const Process& process) {
    return process.isSystemAtLeast(10, 14, 0);
}

} // namespace

bool FinderExtension::isExtensionEnabled() const {
    return !hasManagementInterface(process_) || bundle_.isExtensionEnabled();
}

void FinderExtension::promptToEnableExtension() {
    // These texts are not localised.
    const AlertRequest request{.messageText = "Enable Extension",
        .informativeText = "The Tarnwick Finder extension must be enabled in System Preferences",
        .buttons = {"Open System Preferences"}};
    if (panels_.runAlert(request) == alertFirstButton) {
        openSystemPreferences();
    }
}

void FinderExtension::openSystemPreferences() {
    if (hasManagementInterface(process_)) {
        bundle_.showExtensionManagementInterface();
    } else {
        workspace_.openURL(link::systemPreferences);
    }
}

void FinderExtension::checkAtStart() {
    if (isExtensionEnabled() && local_.flag(key::shownEnableExtensionAlert)) {
        return;
    }
    // Deferred, so that the window is on screen before the alert blocks it.
    runLoop_.performOnMainQueue([this] {
        promptToEnableExtension();
        local_.set(key::shownEnableExtensionAlert, true);
    });
}

} // namespace tarnwick
