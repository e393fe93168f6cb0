#pragma once

#include "prefs/RuleCategory.h"
#include "ui/Page.h"

#include <string>

/// What a person does with mouse and keyboard in the window.
namespace tarnwick::gui {

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
void scrollToRow(RuleCategory table, long row);
void press(Key key);
/// With the Command key.
void pressCommand(char key);
/// With the Shift and Command keys.
void pressShiftCommand(char key);
/// With the Option and Command keys.
void pressOptionCommand(Key key);
void type(const std::string& text);
/// The same without looking at anything in between, as fast as a person types on an idle machine.
void typeFast(const std::string& text);
/// Loads a table anew, as the program may at any moment.
void reloadTable(RuleCategory table);
/// The application gives way to another and comes back.
void becomeActive();
/// Sends the controller an action without a control, as a menu item does.
void sendAction(const std::string& selector);

} // namespace tarnwick::gui
