#pragma once

#include "tests/support/InMemoryPlatform.h"
#include "tests/support/InMemoryWindow.h"
#include "ui/SettingsController.h"

#include <cstddef>

namespace tarnwick::bench {

/// The controller over the in-memory platform with one long list of icons, as a launch leaves it.
class LaunchedSettings {
public:
    LaunchedSettings(std::size_t records, std::size_t imageBytes);
    [[nodiscard]] SettingsController& controller() { return controller_; }
    /// The platform's log grows with every call; forgotten after each operation.
    void forgetCalls() { platform_.log.clear(); }

private:
    testing::InMemoryPlatform platform_;
    testing::InMemoryWindow window_{platform_.log, platform_.preferences};
    SettingsController controller_{platform_.ports(), window_};
};

} // namespace tarnwick::bench
