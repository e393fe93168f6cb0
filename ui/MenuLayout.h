#pragma once

#include <span>
#include <string_view>

namespace tarnwick {

/// What an item of the menus asks for.
enum class Command {
    separator,
    about,
    enableExtension,
    installScriptHelper,
    initialize,
    hide,
    hideOthers,
    showAll,
    services,
    quit,
    exportSettings,
    importSettings,
    closeWindow,
    undo,
    redo,
    cut,
    copy,
    paste,
    selectAll,
    find,
    findNext,
    findPrevious,
    rename,
    editNote,
    turnOnOrOff,
    showInMainMenu,
    chooseFolder,
    showInFinder,
    openTemplate,
    previewMenu,
    moveUp,
    moveDown,
    removeRule,
    addRule,
    resetList,
    enableAll,
    minimize,
    zoom,
    bringAllToFront,
    helpRestartingFinder,
    helpServices,
    openServicesSettings,
};

/// The keys held down together with an item's own. Keys without any are those of the table: a menu only
/// shows them.
enum class KeyModifiers { none, command, shiftCommand, optionCommand };

/// The keys that items have and that are no letters, as the platform numbers them.
inline constexpr char16_t returnKey = 0x0D;
inline constexpr char16_t spaceKey = 0x20;
/// The one that removes what is left of the insertion point.
inline constexpr char16_t deleteKey = 0x08;
inline constexpr char16_t upArrowKey = 0xF700;
inline constexpr char16_t downArrowKey = 0xF701;

struct MenuItemLayout {
    /// A key of the localisation table.
    std::string_view title;
    Command command = Command::separator;
    /// 0: none.
    char16_t key = 0;
    KeyModifiers modifiers = KeyModifiers::command;
};

/// What the platform needs to know of a menu.
enum class MenuRole { ordinary, pages, rules, windows, help };

struct MenuLayout {
    std::string_view title;
    /// The menu of pages has an item for each page ahead of them; of the menu of rules, what the list that is
    /// shown has stands there.
    std::span<const MenuItemLayout> items;
    MenuRole role = MenuRole::ordinary;
};

/// The menu bar, from the left.
[[nodiscard]] std::span<const MenuLayout> menuBar();
/// The items of the menu of rules, for the menu bar and for the rows of the tables.
[[nodiscard]] std::span<const MenuItemLayout> ruleMenu();

} // namespace tarnwick
