#pragma once

#include "platform/Ports.h"
#include "tests/support/CallLog.h"
#include "tests/support/InMemoryBundle.h"
#include "tests/support/InMemoryFileContents.h"
#include "tests/support/InMemoryFiles.h"
#include "tests/support/InMemoryFolders.h"
#include "tests/support/InMemoryImages.h"
#include "tests/support/InMemoryNotifications.h"
#include "tests/support/InMemoryPanels.h"
#include "tests/support/InMemoryPreferences.h"
#include "tests/support/InMemoryRunLoop.h"
#include "tests/support/InMemorySystem.h"
#include "tests/support/InMemoryUndoHistory.h"
#include "tests/support/InMemoryWorkspace.h"

namespace tarnwick::testing {

/// Every port at once, working, in memory, with one log of what was asked in order.
struct InMemoryPlatform {
    CallLog log;
    InMemoryPreferences preferences{log};
    InMemoryFiles files{log};
    InMemoryFileContents contents{log, files};
    InMemoryFolders folders;
    InMemoryBundle bundle{log};
    InMemoryImages images;
    InMemoryPanels panels{log};
    InMemoryWorkspace workspace{log};
    InMemoryUserScripts userScripts{log};
    InMemoryNotifications notifications{log};
    InMemoryRunLoop runLoop{log};
    InMemorySystemLog systemLog{log};
    InMemoryProcess process{log};
    InMemoryUndoHistory undoHistory;

    InMemoryPlatform();
    [[nodiscard]] Ports ports();

    /// Puts all resource files of the factory lists and icon folders at "/resources".
    void addResources();
};

} // namespace tarnwick::testing
