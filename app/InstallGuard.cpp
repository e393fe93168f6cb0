#include "app/InstallGuard.h"

#include "app/ApplicationIdentity.h"
#include "platform/ApplicationBundle.h"
#include "platform/Panels.h"
#include "platform/Process.h"
#include "platform/Workspace.h"
#include "prefs/PreferenceKeys.h"

namespace tarnwick {
namespace {

/// Copies on mounted volumes and those of the developer's own builds do not count.
bool isIgnored(std::string_view path) {
    return path.starts_with("/Volumes/") || path.starts_with(TARNWICK_DEVELOPER_BUILD_PREFIX);
}

} // namespace

std::optional<std::string> InstallGuard::findConflict() const {
    const auto copies = workspace_.registeredApplications(applicationIdentifier).paths;
    if (copies.size() <= 1 && workspace_.applicationPath(applicationIdentifier) == installationPath) {
        return std::nullopt;
    }
    std::string listing = "\n";
    for (const auto& path : copies) {
        if (!isIgnored(path)) {
            listing.append(path).append("\n\n");
        }
    }
    const auto onlyAccepted = std::string("\n").append(installationPath).append("\n\n");
    if (listing == "\n" || listing == onlyAccepted) {
        return std::nullopt;
    }
    return listing;
}

bool InstallGuard::run() {
    const auto listing = findConflict();
    if (!listing) {
        return true;
    }
    const AlertRequest request{.messageText = bundle_.localized("Warning"),
        .informativeText =
            bundle_.localized(
                "In order to ensure the stability of Tarnwick, only one Tarnwick can be installed on "
                "your computer, and it can only be installed in the application of the system!") +
            "\n" + bundle_.localized("The current installation paths are:") + "\n" + *listing,
        .buttons = {bundle_.localized("OK")}};
    panels_.runAlert(request);
    process_.exit(0);
    return false;
}

} // namespace tarnwick
