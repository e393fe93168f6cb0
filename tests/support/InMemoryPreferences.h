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
/// "local synchronise", "shared synchronise", "shared open" and "observe KEY".
class InMemoryPreferences final : public PreferenceStores {
public:
    explicit InMemoryPreferences(CallLog& log) : log_(log) {}

    PlistDictionary local;
    PlistDictionary shared;
    /// What the system-wide domain holds.
    std::map<std::string, std::string, std::less<>> systemWide;
    /// Told of each change of an observed key of the local domain; normally the settings controller.
    std::function<void(std::string_view key, const PlistValue& value)> observer;

    std::unique_ptr<PreferenceStore> openStandardDomain() override;
    std::unique_ptr<PreferenceStore> openSuite(std::string_view name) override;
    void observeStandardKey(std::string_view key) override;
    std::optional<std::string> systemWideString(std::string_view key) const override;

    /// A write that the user's switch makes: stored, then told to the observer.
    void userSets(std::string_view key, const PlistValue& value);

private:
    class Store;
    CallLog& log_;
    std::set<std::string, std::less<>> observedKeys_;
};

} // namespace tarnwick::testing
