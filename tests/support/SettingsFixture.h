#pragma once

#include "tests/support/InMemoryWindow.h"
#include "tests/support/StoresFixture.h"
#include "ui/SettingsController.h"

namespace tarnwick::testing {

/// Gives the window's tables the controller's rows, and tells the controller of observed changes.
void connect(InMemoryPlatform& platform, InMemoryWindow& window, SettingsController& controller);

/// The controller of the window over the in-memory platform.
class SettingsFixture : public StoresFixture {
protected:
    SettingsFixture() { connect(platform_, window_, controller_); }

    /// Loads the window and runs `start`, as a launch does; then forgets what was logged.
    void launch();

    InMemoryWindow window_{platform_.log, platform_.preferences};
    SettingsController controller_{platform_.ports(), window_};
};

} // namespace tarnwick::testing
