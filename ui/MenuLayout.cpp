#include "ui/MenuLayout.h"

#include <array>

namespace tarnwick {
namespace {

constexpr MenuItemLayout separator;

constexpr std::array applicationMenu{
    MenuItemLayout{"About Tarnwick", Command::about},
    separator,
    MenuItemLayout{"Enable Extension\u2026", Command::enableExtension},
    MenuItemLayout{"Install Script Helper\u2026", Command::installScriptHelper},
    MenuItemLayout{"Initialize All Settings\u2026", Command::initialize},
    separator,
    MenuItemLayout{"Services", Command::services},
    separator,
    MenuItemLayout{"Hide Tarnwick", Command::hide, u'h'},
    MenuItemLayout{"Hide Others", Command::hideOthers, u'h', KeyModifiers::optionCommand},
    MenuItemLayout{"Show All", Command::showAll},
    separator,
    MenuItemLayout{"Quit Tarnwick", Command::quit, u'q'},
};

constexpr std::array fileMenu{
    MenuItemLayout{"Export Settings\u2026", Command::exportSettings},
    MenuItemLayout{"Import Settings\u2026", Command::importSettings},
    separator,
    MenuItemLayout{"Close Window", Command::closeWindow, u'w'},
};

constexpr std::array editMenu{
    MenuItemLayout{"Undo", Command::undo, u'z'},
    MenuItemLayout{"Redo", Command::redo, u'z', KeyModifiers::shiftCommand},
    separator,
    MenuItemLayout{"Cut Text", Command::cut, u'x'},
    MenuItemLayout{"Copy Text", Command::copy, u'c'},
    MenuItemLayout{"Paste Text", Command::paste, u'v'},
    MenuItemLayout{"Select All", Command::selectAll, u'a'},
    separator,
    MenuItemLayout{"Find\u2026", Command::find, u'f'},
    MenuItemLayout{"Find Next", Command::findNext, u'g'},
    MenuItemLayout{"Find Previous", Command::findPrevious, u'g', KeyModifiers::shiftCommand},
};

constexpr std::array rules{
    MenuItemLayout{"Rename", Command::rename, returnKey, KeyModifiers::none},
    MenuItemLayout{"Edit Note", Command::editNote, u'e'},
    MenuItemLayout{"Turn On", Command::turnOnOrOff, spaceKey, KeyModifiers::none},
    MenuItemLayout{"Show in Main Menu", Command::showInMainMenu, u'm', KeyModifiers::shiftCommand},
    separator,
    MenuItemLayout{"Choose Folder\u2026", Command::chooseFolder},
    MenuItemLayout{"Show in Finder", Command::showInFinder, u'r', KeyModifiers::shiftCommand},
    MenuItemLayout{"Open Template", Command::openTemplate, u'o'},
    separator,
    MenuItemLayout{"Move Up", Command::moveUp, upArrowKey, KeyModifiers::optionCommand},
    MenuItemLayout{"Move Down", Command::moveDown, downArrowKey, KeyModifiers::optionCommand},
    separator,
    MenuItemLayout{"Remove", Command::removeRule, deleteKey, KeyModifiers::none},
    separator,
    MenuItemLayout{"Add\u2026", Command::addRule, u'n'},
    MenuItemLayout{"Reset List", Command::resetList},
    MenuItemLayout{"Enable All", Command::enableAll},
};

constexpr std::array viewMenu{
    separator,
    MenuItemLayout{"Preview Menu", Command::previewMenu, u'p', KeyModifiers::shiftCommand},
};

constexpr std::array windowMenu{
    MenuItemLayout{"Minimize", Command::minimize, u'm'},
    MenuItemLayout{"Zoom", Command::zoom},
    separator,
    MenuItemLayout{"Bring All to Front", Command::bringAllToFront},
};

constexpr std::array helpMenu{
    MenuItemLayout{"Restarting the Finder", Command::helpRestartingFinder},
    MenuItemLayout{"Turning on the Services", Command::helpServices},
    separator,
    MenuItemLayout{"Open Services Settings", Command::openServicesSettings},
};

constexpr std::array menus{
    MenuLayout{"Tarnwick", applicationMenu},
    MenuLayout{"File", fileMenu},
    MenuLayout{"Edit", editMenu},
    MenuLayout{"View", viewMenu, MenuRole::pages},
    MenuLayout{"Rule", rules, MenuRole::rules},
    MenuLayout{"Window", windowMenu, MenuRole::windows},
    MenuLayout{"Help", helpMenu, MenuRole::help},
};

} // namespace

std::span<const MenuLayout> menuBar() {
    return menus;
}

std::span<const MenuItemLayout> ruleMenu() {
    return rules;
}

} // namespace tarnwick
