#pragma once

#include "tests/support/InMemoryPlatform.h"
#include "tests/support/InMemoryWindow.h"
#include "ui/SettingsViewController.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarnwick::testing {

/// Connects the controller to all controls, the tables to its rows, and both to changes of the preferences.
void connect(InMemoryPlatform& platform, InMemoryWindow& window, SettingsViewController& controller);

/// The controller over the in-memory platform, with all controls connected.
class SettingsFixture : public ::testing::Test {
protected:
    SettingsFixture();

    /// Loads the window and runs `start`, as a launch does; then forgets what was logged.
    void launch();
    /// Stores a list before the launch.
    void storeList(RuleCategory category, std::vector<RuleRecord> records);

    [[nodiscard]] const PlistValue& local(std::string_view key) const;
    [[nodiscard]] const PlistValue& shared(std::string_view key) const;
    [[nodiscard]] const PlistArray& localList(RuleCategory category) const;
    [[nodiscard]] const PlistArray& sharedList(RuleCategory category) const;
    /// One field of every record of a stored list; "-" where it is missing or no string.
    [[nodiscard]] static std::vector<std::string> texts(const PlistArray& list, std::string_view key);

    InMemoryPlatform platform_;
    InMemoryWindow window_;
    SettingsViewController controller_;
};

/// A record from field names and values.
[[nodiscard]] RuleRecord makeRecord(std::initializer_list<std::pair<std::string_view, PlistValue>> fields);

} // namespace tarnwick::testing
