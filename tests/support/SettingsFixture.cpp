#include "tests/support/SettingsFixture.h"

namespace tarnwick::testing {

void connect(InMemoryPlatform& platform, InMemoryWindow& window, SettingsController& controller) {
    for (const auto category : allRuleCategories) {
        window.table(category).rowCount = [&controller, category] {
            return controller.rows().count(category);
        };
    }
    platform.preferences.observer = [&controller](std::string_view key, const PlistValue& value) {
        controller.switchChanged(key, value);
    };
}

void SettingsFixture::launch() {
    controller_.awakeFromNib();
    platform_.runLoop.runMain();
    for (const auto category : allRuleCategories) {
        window_.reload(category);
    }
    platform_.log.clear();
}

} // namespace tarnwick::testing
