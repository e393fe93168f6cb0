#pragma once

#include "platform/Workspace.h"

#include <memory>
#include <string_view>

namespace tarnwick {

class DistributedNotifications;
class RunLoop;
class UserScripts;

/// What differs from platform to platform: `adapters/macos/` or `adapters/linux/`; the build picks one.

/// What must happen before anything else of the toolkit is touched, first of all in `main`.
void prepareProcess(int argc, char* argv[]);

[[nodiscard]] std::unique_ptr<UserScripts> makeUserScripts();
[[nodiscard]] std::unique_ptr<DistributedNotifications> makeDistributedNotifications();
[[nodiscard]] std::unique_ptr<RunLoop> makeRunLoop();

/// What the ports over Foundation and AppKit pass on.
[[nodiscard]] RegisteredApplications registeredApplications(std::string_view bundleIdentifier);
[[nodiscard]] bool isSystemAtLeast(int major, int minor, int patch);
[[nodiscard]] bool carriesExtension();
[[nodiscard]] bool isExtensionEnabled();
void showExtensionManagementInterface();
[[nodiscard]] bool isForced(std::string_view key);

} // namespace tarnwick
