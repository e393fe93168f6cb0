#pragma once

#include <string_view>

namespace tarnwick {

class LaunchServices;

/// Whether at least one copy of the application is registered; an error of the register counts as none.
[[nodiscard]] bool appWithBundleIdentifierInstalled(
    const LaunchServices& launchServices, std::string_view bundleIdentifier);

} // namespace tarnwick
