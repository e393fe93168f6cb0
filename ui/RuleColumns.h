#pragma once

#include "prefs/RuleCategory.h"
#include "ui/RuleCells.h"

#include <optional>
#include <span>
#include <string_view>

namespace tarnwick {

/// What the menus, the keyboard and those who do not see a table need of a column.
enum class ColumnRole { none, icon, name, note, enableSwitch, mainMenuSwitch };

/// A column of a table: how wide it is, what its cells show and what they say of themselves. Texts are keys
/// of the localisation table; sizes are points.
struct Column {
    std::string_view identifier;
    /// Empty: a column without heading.
    std::string_view title;
    double width = 0;
    /// Empty room at its left, for a cell that has none of its own.
    double roomBefore = 0;
    /// What a cell's control does or shows, for those who do not see it; the placeholder stands for the row.
    std::string_view label;
    RuleCells::Maker cell = nullptr;
    /// Of the control in its cell.
    std::optional<Frame> frame;
    /// What a check box turns on and off.
    std::string_view field;
    /// Takes a share of the width that the window gains or loses; the others keep theirs.
    bool flexible = false;
    /// Over contents that stand in the middle of the column.
    bool centredTitle = false;
    /// Its cells show a text that can be found.
    bool isSearched = false;
    /// Its texts are paths.
    bool showsPath = false;
    ColumnRole role = ColumnRole::none;
};

/// The columns of the category's table, from the left.
[[nodiscard]] std::span<const Column> columnsOf(RuleCategory category);

/// Null when the table has no such column.
[[nodiscard]] const Column* columnOf(RuleCategory category, std::string_view identifier);
[[nodiscard]] const Column* columnOf(RuleCategory category, ColumnRole role);

} // namespace tarnwick
