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
    quit,
    addRule,
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
    moveUp,
    moveDown,
    minimize,
    zoom,
    bringAllToFront,
    helpRestartingFinder,
    helpServices,
    openServicesSettings,
};

/// The keys held down together with an item's own.
enum class KeyModifiers { command, shiftCommand, optionCommand };

/// The function keys that items have, as the platform numbers them.
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
enum class MenuRole { ordinary, pages, windows };

struct MenuLayout {
    std::string_view title;
    /// The menu of pages has an item for each page instead.
    std::span<const MenuItemLayout> items;
    MenuRole role = MenuRole::ordinary;
};

/// The menu bar, from the left.
[[nodiscard]] std::span<const MenuLayout> menuBar();

} // namespace tarnwick
