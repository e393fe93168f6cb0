#pragma once

#include "platform/Ports.h"
#include "tests/support/CallLog.h"
#include "tests/support/InMemoryFileTrees.h"
#include "tests/support/InMemoryFiles.h"
#include "tests/support/InMemoryImages.h"
#include "tests/support/InMemoryPreferences.h"
#include "tests/support/InMemoryPropertyListFiles.h"
#include "tests/support/InMemorySystem.h"
#include "tests/support/InMemoryUndoHistory.h"

namespace tarnwick::testing {

/// Every port at once, working, in memory, with one log of what was asked in order.
struct InMemoryPlatform {
    CallLog log;
    InMemoryPreferences preferences{log};
    InMemoryFiles files{log};
    InMemoryFileTrees trees{log, files};
    InMemoryPropertyListFiles listFiles{log};
    InMemoryFileStatus fileStatus{files};
    InMemoryFolders folders;
    InMemoryBundle bundle;
    InMemoryImages images;
    InMemoryPanels panels{log};
    InMemoryWorkspace workspace{log};
    InMemoryFinderSync finderSync{log};
    InMemoryUserScripts userScripts{log};
    InMemoryNotifications notifications{log};
    InMemoryRunLoop runLoop{log};
    InMemorySystemLog systemLog{log};
    InMemoryProcess process{log};
    InMemoryClock clock;
    InMemoryUndoHistory undoHistory;

    InMemoryPlatform();
    [[nodiscard]] Ports ports();

    /// Puts all resource files of the factory lists and icon folders at "/resources".
    void addResources();
};

} // namespace tarnwick::testing
