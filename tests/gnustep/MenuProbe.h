#pragma once

#include <string>
#include <vector>

/// Menus in a program that has started up.
namespace tarnwick::probe {

struct Keys {
    std::string character;
    bool shift = false;
    bool option = false;
    bool control = false;
};

/// What a menu shows for an item with these keys and Command.
std::string keyLabel(const Keys& keys);
std::string labelOfArrowUp();
/// Whether an item with these keys and Command is chosen when others are pressed with it.
bool isChosenBy(const Keys& item, const Keys& pressed);

/// Whether Command and the upward arrow choose the one item that a menu of three has when it is asked for
/// keys; its delegate puts it there.
bool isChosenWhenPutThere();

/// What happened while a menu popped up and these characters were typed: "will open", "chosen Three", "did
/// close", "answer yes". Its items are One, which is disabled, a separator, Two, and Three with a submenu of
/// Four and Five.
std::vector<std::string> popUpAndType(const std::u16string& characters);

/// The windows menu, which has an item "Own", while two windows are open, and when both are closed: the
/// titles, "-" for a separator, "marked ", "pictured ".
struct WindowsMenu {
    std::vector<std::string> open;
    std::vector<std::string> closed;
};
/// The second window is the main one.
WindowsMenu windowsMenuOfTwo();

} // namespace tarnwick::probe
