#pragma once

#include "tests/support/InMemoryPlatform.h"
#include "tests/support/InMemoryWindow.h"
#include "ui/SettingsController.h"

namespace tarnwick::fuzz {

/// A controller over the in-memory platform, with all controls connected.
class Program {
public:
    explicit Program(testing::InMemoryPlatform& platform);

    void launch();
    /// Builds every cell of every table, and of the rows before and behind them.
    void showEverything();
    [[nodiscard]] SettingsController& controller() { return controller_; }

private:
    testing::InMemoryPlatform& platform_;
    testing::InMemoryWindow window_;
    SettingsController controller_;
};

/// Whether `stored`, as it stood under the list key before, lost nothing: every element of it is in the
/// stored list or in an original that was kept aside.
[[nodiscard]] bool keepsEverything(
    const PlistDictionary& local, std::string_view listKey, const PlistValue& stored);

} // namespace tarnwick::fuzz
