#include "integration/RestartRequest.h"

#include "platform/DistributedNotifications.h"
#include "prefs/PreferenceKeys.h"
#include "prefs/SharedPreferences.h"

namespace tarnwick {

void RestartRequest::send() {
    SharedPreferences shared(stores_);
    shared.set(key::askAction, PlistDictionary{{"ActionType", "restartFinder"}});
    notifications_.post(key::askAction, deliverImmediately | postToAllSessions);
}

} // namespace tarnwick
