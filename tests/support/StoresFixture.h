#pragma once

#include "prefs/RuleCategory.h"
#include "prefs/RuleRecord.h"
#include "tests/support/InMemoryPlatform.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarnwick::testing {

/// The in-memory platform, and what its two stores hold.
class StoresFixture : public ::testing::Test {
protected:
    /// Stores a list before the launch.
    void storeList(RuleCategory category, std::vector<RuleRecord> records);

    [[nodiscard]] const PlistValue& local(std::string_view key) const;
    [[nodiscard]] const PlistValue& shared(std::string_view key) const;
    [[nodiscard]] const PlistArray& localList(RuleCategory category) const;
    [[nodiscard]] const PlistArray& sharedList(RuleCategory category) const;
    /// One field of every record of a stored list; "-" where it is missing or no string.
    [[nodiscard]] static std::vector<std::string> texts(const PlistArray& list, std::string_view key);

    InMemoryPlatform platform_;
};

/// A record from field names and values.
[[nodiscard]] RuleRecord makeRecord(std::initializer_list<std::pair<std::string_view, PlistValue>> fields);

} // namespace tarnwick::testing
