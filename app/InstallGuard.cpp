#include "app/InstallGuard.h"

#include "app/ApplicationIdentity.h"
#include "platform/Alerts.h"
#include "platform/ApplicationBundle.h"
#include "platform/LaunchServices.h"
#include "platform/ProcessControl.h"
#include "platform/Workspace.h"

namespace tarnwick {
namespace {

/// Copies on mounted volumes and those of the developer's own builds do not count.
bool isIgnored(std::string_view path) {
    return path.starts_with("/Volumes/") || path.starts_with(TARNWICK_DEVELOPER_BUILD_PREFIX);
}

} // namespace

std::optional<std::string> findInstallConflict(const Platform& platform) {
    const auto copies = platform.launchServices.applications(applicationIdentifier).paths;
    if (copies.size() <= 1 && platform.workspace.applicationPath(applicationIdentifier) == installationPath) {
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

bool runInstallGuard(const Platform& platform) {
    const auto listing = findInstallConflict(platform);
    if (!listing) {
        return true;
    }
    const auto& bundle = platform.bundle;
    const AlertRequest request{.messageText = bundle.localized("Warning"),
        .informativeText =
            bundle.localized(
                "In order to ensure the stability of Tarnwick, only one Tarnwick can be installed on "
                "your computer, and it can only be installed in the application of the system!") +
            "\n" + bundle.localized("The current installation paths are:") + "\n" + *listing,
        .buttons = {bundle.localized("OK")}};
    platform.alerts.runModal(request);
    platform.process.exit(0);
    return false;
}

} // namespace tarnwick
