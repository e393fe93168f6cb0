#pragma once

#include "prefs/RuleCategory.h"

#include <string_view>

namespace tarnwick {

class LocalPreferences;
class PlistValue;
class PreferenceStores;
class RuleLists;

/// Hands the enabled part of each list to the Finder extension through `SharedPreferences`. Nothing else
/// tells the extension: the suite is written and synchronised, and that is all. Results are not examined.
class RulePublisher {
public:
    RulePublisher(PreferenceStores& stores, LocalPreferences& local, const RuleLists& lists)
        : stores_(stores), local_(local), lists_(lists) {}

    /// Opens a new handle on `SharedPreferences`, replaces the value under `key`, synchronises.
    void saveData(const PlistValue& value, std::string_view key);

    /// Where the category has an enable-all flag: writes it true into `LocalPreferences`, and false at the
    /// first disabled record. Then publishes the enabled records, in order, under the list key.
    void publish(RuleCategory category);

private:
    PreferenceStores& stores_;
    LocalPreferences& local_;
    const RuleLists& lists_;
};

} // namespace tarnwick
