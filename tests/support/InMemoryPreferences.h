#pragma once

#include "platform/PreferenceStore.h"
#include "tests/support/CallLog.h"
#include "tests/support/Printing.h"

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace tarnwick::testing {

/// Both preference domains as dictionaries. Logs "local set KEY", "shared set KEY", "local remove KEY",
/// "local synchronise", "shared synchronise" and "shared open".
class InMemoryPreferences final : public PreferenceStores {
public:
    explicit InMemoryPreferences(CallLog& log) : log_(log) {}

    PlistDictionary local;
    PlistDictionary shared;
    /// What the system-wide domain holds.
    std::map<std::string, std::string, std::less<>> systemWide;
    /// The keys of the local domain whose changes, and only changes, `observer` is told; that a value is gone
    /// as false.
    std::set<std::string, std::less<>> observedKeys;
    std::function<void(std::string_view key, const PlistValue& value)> observer;

    /// What an administrator has set.
    std::set<std::string, std::less<>> forced;

    bool isForced(std::string_view key) const override { return forced.count(key) != 0; }
    std::unique_ptr<PreferenceStore> openStandardDomain() override;
    std::unique_ptr<PreferenceStore> openSuite(std::string_view name) override;
    std::optional<std::string> systemWideString(std::string_view key) const override;

    /// A write that the user's switch makes: stored, then told to the observer.
    void userSets(std::string_view key, const PlistValue& value);

private:
    class Store;
    CallLog& log_;
};

} // namespace tarnwick::testing
