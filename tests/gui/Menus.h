#pragma once

#include "prefs/RuleCategory.h"

#include <string>
#include <vector>

/// What a person does in menus, and what these show while they are open.
namespace tarnwick::gui {

enum class MenuPress { rightButton, leftWithControl };

struct MenuItemFacts {
    std::string title;
    /// As the menu writes them, "Shift+Alt+R".
    std::string keys;
    std::string toolTip;
    bool isEnabled = false;
    bool isMarked = false;
    /// In front of its title.
    bool showsPicture = false;

    bool operator==(const MenuItemFacts&) const = default;
};

/// Opens the menu of a cell, chooses the item with this title by the keyboard, or leaves by Escape without
/// one. Gives what the menu showed, without separators.
std::vector<MenuItemFacts> openMenuOfCell(RuleCategory table, long row, const std::string& column,
    const std::string& chosen = "", MenuPress press = MenuPress::rightButton);
/// The same below the last row.
std::vector<MenuItemFacts> openMenuOfEmptySpace(RuleCategory table);
/// The same by the Menu key, for the selected row.
std::vector<MenuItemFacts> openMenuByKey(RuleCategory table, const std::string& chosen = "");
/// The same for the preview of the extension's menu.
std::vector<MenuItemFacts> openPreview();
/// Whether the first picture of it that its item draws no longer asks for that when it is kept beyond the
/// menu.
[[nodiscard]] bool keptPictureAsksNobody();
/// The same for a menu of the menu bar, which a click on its title opens.
std::vector<MenuItemFacts> openMenuOfBar(const std::string& title, const std::string& chosen = "");

[[nodiscard]] MenuItemFacts itemTitled(const std::vector<MenuItemFacts>& items, const std::string& title);
[[nodiscard]] std::vector<std::string> titlesOf(const std::vector<MenuItemFacts>& items);

/// Whether the application knows this menu of the bar as its Help menu.
[[nodiscard]] bool isHelpMenu(const std::string& title);

} // namespace tarnwick::gui
