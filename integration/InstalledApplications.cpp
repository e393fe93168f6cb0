#include "integration/InstalledApplications.h"

#include "platform/LaunchServices.h"

namespace tarnwick {

bool appWithBundleIdentifierInstalled(
    const LaunchServices& launchServices, std::string_view bundleIdentifier) {
    const auto applications = launchServices.applications(bundleIdentifier);
    return !applications.failed && !applications.paths.empty();
}

} // namespace tarnwick
