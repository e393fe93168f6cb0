#pragma once

#include "prefs/RuleCategory.h"
#include "ui/Outlets.h"

#include <optional>
#include <span>
#include <string_view>

namespace tarnwick {

/// The window's layout as data. Texts are keys of the localisation table; sizes are points.

inline constexpr double windowWidth = 940;
inline constexpr double windowHeight = 620;
inline constexpr double windowMinimumWidth = 920;
inline constexpr double windowMinimumHeight = 500;
inline constexpr double sidebarWidth = 208;

struct ColumnLayout {
    /// Selects the cell's control.
    std::string_view identifier;
    /// Empty: a column without heading.
    std::string_view title;
    double width = 0;
    /// Takes a share of the width that the window gains or loses; the others keep theirs.
    bool flexible = false;
    /// Over contents that stand in the middle of the column.
    bool centredTitle = false;
};

/// A check box that reads and writes one boolean of `LocalPreferences`.
struct SwitchLayout {
    std::string_view key;
    std::string_view title;
    std::string_view toolTip;
};

struct PageLayout {
    Page page = Page::createNewFile;
    /// The page button's image among the resources, and its title.
    std::string_view image;
    std::string_view title;
    /// What the page is for, in a sentence.
    std::string_view explanation;
    /// Nothing on the page of further applications.
    std::optional<RuleCategory> category;
    std::span<const ColumnLayout> columns;
    /// The columns that hold a rule's name, and its switch; empty: none.
    std::string_view nameColumn;
    std::string_view switchColumn;
    std::span<const SwitchLayout> switches;
    /// The title of the switch above the table that turns every rule on or off; empty: there is none.
    std::string_view enableAllTitle;
    std::string_view addTitle;
    /// What stands in the table while it has no rows: what belongs there, and how to add the first.
    std::string_view emptyTitle;
    std::string_view emptyHint;
};

/// The page of a category's list.
[[nodiscard]] const PageLayout& layoutOf(RuleCategory category);
/// In page order.
[[nodiscard]] std::span<const PageLayout, pageCount> pageLayouts();

} // namespace tarnwick
