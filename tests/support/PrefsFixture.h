#pragma once

#include "prefs/Preferences.h"
#include "tests/support/StoresFixture.h"

namespace tarnwick::testing {

/// The lists and stores over the in-memory platform, without a window.
class PrefsFixture : public StoresFixture {
protected:
    /// Loads the preferences, as a launch does.
    void load() {
        preferences_.loading.prepareStoresAndFolders();
        preferences_.loading.loadLists();
    }
    [[nodiscard]] RuleList& list(RuleCategory category) { return preferences_.lists[category]; }

    Preferences preferences_{platform_.ports()};
};

} // namespace tarnwick::testing
