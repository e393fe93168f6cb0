#pragma once

#include "prefs/RuleCategory.h"

#include <string_view>

namespace tarnwick {

class LocalPreferences;
class PlistValue;
class PreferenceStores;
class RulePages;

/// Switches rules on and off.
class ToggleRules {
public:
    ToggleRules(LocalPreferences& local, RulePages& pages) : local_(local), pages_(pages) {}

    /// A row's check box: writes "enable" as an integer. A fixed Others action stays as it is; a target
    /// without a folder is stored off. Order: list, store, synchronise, reload, publish. A row that the list
    /// does not have changes nothing.
    void setEnabled(RuleCategory category, long row, bool on);
    /// The second check box of a CreateNewFile row, "enableMainMenu"; the same order.
    void setEnabledInMainMenu(long row, bool on);

    /// Gives every record the list's enable-all boolean of `LocalPreferences`, as a boolean; fixed Others
    /// actions get the integer 1. Order: list, reload, store without synchronising, publish. A list without
    /// such a boolean is left alone.
    void enableAll(RuleCategory category);

private:
    void setFlag(RuleCategory category, long row, std::string_view key, bool on);

    LocalPreferences& local_;
    RulePages& pages_;
};

/// Copies a changed switch of `LocalPreferences` into a new handle on `SharedPreferences`, as a boolean, and
/// synchronises.
void mirrorSwitch(PreferenceStores& stores, std::string_view key, const PlistValue& newValue);

} // namespace tarnwick
