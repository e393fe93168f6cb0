#pragma once

namespace tarnwick {

class DistributedNotifications;
class PreferenceStores;

/// Asks the extension to restart the Finder. Nothing waits for an answer.
class RestartRequest {
public:
    RestartRequest(PreferenceStores& stores, DistributedNotifications& notifications)
        : stores_(stores), notifications_(notifications) {}

    /// Writes {"ActionType": "restartFinder"} under "askActionFromTarnwick" in `SharedPreferences`, without
    /// synchronising, then posts the distributed notification of the same name, immediately and to all
    /// sessions.
    void send();

private:
    PreferenceStores& stores_;
    DistributedNotifications& notifications_;
};

} // namespace tarnwick
