#pragma once

#include <memory>

namespace tarnwick {

class DistributedNotifications;
class FinderSync;
class LaunchServices;
class LoginItems;
class RunLoop;
class SystemVersion;
class UserScripts;

/// The ports whose implementation differs from platform to platform: `adapters/macos/` or
/// `adapters/linux/`; the build picks one.

/// What must happen before anything else of the toolkit is touched, first of all in `main`.
void prepareProcess(int argc, char* argv[]);

[[nodiscard]] std::unique_ptr<LaunchServices> makeLaunchServices();
[[nodiscard]] std::unique_ptr<LoginItems> makeLoginItems();
[[nodiscard]] std::unique_ptr<FinderSync> makeFinderSync();
[[nodiscard]] std::unique_ptr<UserScripts> makeUserScripts();
[[nodiscard]] std::unique_ptr<DistributedNotifications> makeDistributedNotifications();
[[nodiscard]] std::unique_ptr<RunLoop> makeRunLoop();
[[nodiscard]] std::unique_ptr<SystemVersion> makeSystemVersion();

} // namespace tarnwick
