#include "integration/RestartRequest.h"

#include "platform/DistributedNotifications.h"
#include "prefs/PreferenceKeys.h"
#include "prefs/SharedPreferences.h"

namespace tarnwick {

void requestFinderRestart(PreferenceStores& stores, DistributedNotifications& notifications) {
    SharedPreferences shared(stores);
    shared.set(key::askAction, PlistDictionary{{"ActionType", "restartFinder"}});
    notifications.post(key::askAction, deliverImmediately | postToAllSessions);
}

} // namespace tarnwick
