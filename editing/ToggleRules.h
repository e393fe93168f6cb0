#pragma once

#include "prefs/RuleCategory.h"

#include <string_view>

namespace tarnwick {

class ListEditor;
class LocalPreferences;

/// Switches rules on and off.
class ToggleRules {
public:
    ToggleRules(LocalPreferences& local, ListEditor& editor) : local_(local), editor_(editor) {}

    /// A row's check box: writes "enable" as an integer. A fixed record stays as it is; a target without a
    /// folder is stored off. Order: list, store, synchronise, reload, publish. A row that the list does not
    /// have changes nothing.
    void setEnabled(RuleCategory category, long row, bool on);
    /// The second check box of a CreateNewFile row, "enableMainMenu"; the same order.
    void setEnabledInMainMenu(long row, bool on);

    /// Gives every record the list's enable-all boolean of `LocalPreferences`, as a boolean; fixed records
    /// get the integer 1. Order: list, reload, store without synchronising, publish. A list without such a
    /// boolean is left alone.
    void enableAll(RuleCategory category);

private:
    void setFlag(RuleCategory category, long row, std::string_view key, bool on);

    LocalPreferences& local_;
    ListEditor& editor_;
};

} // namespace tarnwick
