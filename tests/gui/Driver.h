#pragma once

#include "prefs/RuleCategory.h"
#include "ui/Outlets.h"

#include <functional>
#include <string>
#include <vector>

/// Drives the real window as a person does, with mouse and keyboard events, and looks at what it shows. Tests
/// are plain C++; the toolkit stays behind these functions.
namespace tarnwick::gui {

/// Builds the application's window, then runs `tests` inside the running application; its result is the exit
/// status. Call from `main`.
int runInApplication(int argc, char* argv[], std::function<int()> tests);

/// Handles events until the condition holds; false when ten seconds have passed without.
bool waitUntil(const std::function<bool()>& condition);
/// Handles what is waiting.
void settle();

enum class Key { returnKey, tab, escape, space, deleteKey, up, down };

void clickPageButton(Page page);
/// Clicks in the middle of a cell.
void clickCell(RuleCategory table, long row, const std::string& column, int clicks = 1);
/// Clicks below the last row.
void clickEmptySpace(RuleCategory table);
/// Clicks a row's check box.
void clickCheckBox(RuleCategory table, long row, const std::string& column);
/// Clicks the visible button (or check box) with this title.
void clickButton(const std::string& title);
/// Drags a row, step by step, into the gap above row `gap`.
void dragRowIntoGap(RuleCategory table, long row, long gap);
/// Drags a row onto the middle of another.
void dragRowOntoRow(RuleCategory table, long row, long target);
void press(Key key);
/// With the Command key.
void pressCommand(char key);
/// With the Option and Command keys.
void pressOptionCommand(Key key);
void type(const std::string& text);

[[nodiscard]] int shownPage();
[[nodiscard]] long rowCount(RuleCategory table);
/// -1 when no row is selected.
[[nodiscard]] long selectedRow(RuleCategory table);
/// What the cell's text field shows now.
[[nodiscard]] std::string cellText(RuleCategory table, long row, const std::string& column);
[[nodiscard]] bool cellIsOn(RuleCategory table, long row, const std::string& column);
[[nodiscard]] bool cellIsEnabled(RuleCategory table, long row, const std::string& column);
/// How many rows have controls just now.
[[nodiscard]] long builtRows(RuleCategory table);
/// Sends the controller an action without a control, as a menu item does.
void sendAction(const std::string& selector);
void scrollToRow(RuleCategory table, long row);
[[nodiscard]] bool removeButtonIsEnabled(RuleCategory table);
/// Whether the visible button with this title is enabled; false when there is none.
[[nodiscard]] bool buttonIsEnabled(const std::string& title);
/// Whether the visible check box with this title is on.
[[nodiscard]] bool buttonIsOn(const std::string& title);
/// Whether a text field with just this text can be seen on the page that is shown.
[[nodiscard]] bool showsText(const std::string& text);
/// Whether a text field of the window is being edited.
[[nodiscard]] bool isEditing();
/// Keeps a picture of the screen when the environment's TARNWICK_PICTURES names a folder for it.
void takePicture(const std::string& name);
/// What the alert said whose button was pressed last.
[[nodiscard]] std::string lastAlertText();

/// Once an alert or panel is up, presses its button with this title; call before what opens it.
void pressInNextPanel(const std::string& buttonTitle);

/// Once an open panel is up, types what is to be chosen, a folder and then perhaps a file in it, and
/// confirms; with nothing to choose, cancels. Call before what opens it.
void chooseInNextPanel(const std::vector<std::string>& texts);

} // namespace tarnwick::gui
