#pragma once

#include "platform/Platform.h"
#include "tests/support/CallLog.h"
#include "tests/support/InMemoryFiles.h"
#include "tests/support/InMemoryImages.h"
#include "tests/support/InMemoryPreferences.h"
#include "tests/support/InMemorySystem.h"

namespace tarnwick::testing {

/// Every port at once, working, in memory, with one log of what was asked in order.
struct InMemoryPlatform {
    CallLog log;
    InMemoryPreferences preferences{log};
    InMemoryFiles files{log};
    InMemoryFolders folders;
    InMemoryBundle bundle;
    InMemoryImages images;
    InMemoryOpenPanel openPanel{log};
    InMemoryAlerts alerts{log};
    InMemoryWorkspace workspace{log};
    InMemoryRunningApplications runningApplications{log};
    InMemoryLaunchServices launchServices;
    InMemoryLoginItems loginItems{log};
    InMemoryFinderSync finderSync{log};
    InMemoryUserScripts userScripts{log};
    InMemoryNotifications notifications{log};
    InMemoryRunLoop runLoop{log};
    InMemorySystemVersion systemVersion;
    InMemorySystemLog systemLog{log};
    InMemoryShell shell;
    InMemoryPropertyLists propertyLists{log};
    InMemoryProcess process{log};

    InMemoryPlatform();
    [[nodiscard]] Platform ports();

    /// Puts all resource files of the factory lists and icon folders at "/resources".
    void addResources();
};

} // namespace tarnwick::testing
