#pragma once

#include "prefs/RuleCategory.h"

#include <string>

/// What AppKit asks of a table's cells and GNUstep does not.
namespace tarnwick::gui {

/// The background style of the cell's text after its row has passed one on: 1, that of a selected row, then
/// 0.
[[nodiscard]] std::string backgroundStylesOfText(RuleCategory table, long row, const std::string& column);
/// Whether a drag of the cell, or of what is in it, would move the window.
[[nodiscard]] bool cellMovesWindow(RuleCategory table, long row, const std::string& column);
/// Whether a drag across the cell's text would select it.
[[nodiscard]] bool cellTextIsSelectable(RuleCategory table, long row, const std::string& column);
/// The part of the cell's width that its text takes up as it is drawn, from 0 to 1.
[[nodiscard]] double drawnShareOfText(RuleCategory table, long row, const std::string& column);

} // namespace tarnwick::gui
