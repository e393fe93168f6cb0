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
    /// What else the window asks for, on the list of icons.
    void switchAll(bool on);
    void removeRow(long row);
    void addPicture();

    /// The platform's log and the kept steps grow with every call; forgotten after each operation.
    void forgetCalls();
    void forgetLog() { platform_.log.clear(); }
    void forgetSteps() { platform_.undoHistory.replaceAll({}); }
    [[nodiscard]] std::size_t steps() const { return platform_.undoHistory.undoCount(); }

private:
    testing::InMemoryPlatform platform_;
    testing::InMemoryWindow window_{platform_.log, platform_.preferences};
    SettingsController controller_{platform_.ports(), window_};
};

} // namespace tarnwick::bench
