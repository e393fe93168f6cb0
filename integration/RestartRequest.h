#pragma once

namespace tarnwick {

class DistributedNotifications;
class PreferenceStores;

/// Asks the extension to restart the Finder: writes {"ActionType": "restartFinder"} under
/// "askActionFromTarnwick" in `SharedPreferences`, without synchronising, then posts the distributed
/// notification of the same name, immediately and to all sessions. Nothing waits for an answer.
void requestFinderRestart(PreferenceStores& stores, DistributedNotifications& notifications);

} // namespace tarnwick
