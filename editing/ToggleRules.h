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

    /// A check box of a row: writes `field`, which says whether the rule is offered ("enable") or where
    /// ("enableMainMenu"), as an integer. A fixed record stays as it is; a target without a folder is stored
    /// off. Order: list, store, synchronise, reload, publish. A row that the list does not have changes
    /// nothing.
    void set(RuleCategory category, long row, std::string_view field, bool on);

    /// Whether that check box can turn the record on; a row that the list does not have cannot be.
    [[nodiscard]] bool canTurnOn(RuleCategory category, long row) const;

    /// Gives every record the list's enable-all boolean of `LocalPreferences`, as a boolean; fixed records
    /// get the integer 1. Order: list, reload, store without synchronising, publish. A list without such a
    /// boolean is left alone.
    void enableAll(RuleCategory category);

private:
    LocalPreferences& local_;
    ListEditor& editor_;
};

} // namespace tarnwick
