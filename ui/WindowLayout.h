#pragma once

#include "prefs/RuleCategory.h"
#include "ui/CountText.h"
#include "ui/Page.h"

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

/// A check box that reads and writes one boolean of `LocalPreferences`.
struct SwitchLayout {
    std::string_view key;
    std::string_view title;
    std::string_view toolTip;
    /// It says whether the menu shows the icons of the page's rules.
    bool showsIcons = false;
};

/// Rules that stand together in the Finder's menu, under a title.
struct MenuSection {
    std::string_view title;
    /// Whether it is there; empty: always.
    std::string_view switchKey;
    /// Its icon among those that the extension is given.
    std::string_view icon;
};

struct PageLayout {
    /// The page button's image among the resources, and its title.
    std::string_view image;
    std::string_view title;
    /// What the page is for, in a sentence.
    std::string_view explanation;
    /// Nothing on the page of further applications.
    std::optional<RuleCategory> category;
    std::span<const SwitchLayout> switches;
    /// The title of the switch above the table that turns every rule on or off; empty: there is none.
    std::string_view enableAllTitle;
    /// What stands beside it: how many rules are on, and of how many.
    CountTexts enabledCount;
    std::string_view addTitle;
    /// What stands in the table while it has no rows: what belongs there, and how to add the first.
    std::string_view emptyTitle;
    std::string_view emptyHint;
    /// Where its rules are in the menu; none: one by one at its foot.
    std::span<const MenuSection> sections;
};

[[nodiscard]] const PageLayout& layoutOf(Page page);
/// The page of a category's list.
[[nodiscard]] Page pageOf(RuleCategory category);

/// The texts below the page buttons.
namespace sidebar {
inline constexpr std::string_view preview = "Preview Menu";
inline constexpr std::string_view previewToolTip =
    "Shows the menu that the Finder is given. Choose an item to see its rule.";
inline constexpr std::string_view help = "Help";
inline constexpr std::string_view tip = "Menu out of date? Restarting the Finder helps.";
inline constexpr std::string_view restart = "Restart Finder";
} // namespace sidebar

/// Another application, or what else the page of further applications leads to.
struct AppTile {
    std::string_view image;
    std::string_view name;
    std::string_view description;
    std::string_view buttonTitle;
    /// What the button opens.
    std::string_view address;
};

[[nodiscard]] std::span<const AppTile> appTiles();

} // namespace tarnwick
