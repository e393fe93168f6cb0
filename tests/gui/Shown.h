#pragma once

#include "prefs/RuleCategory.h"
#include "ui/Page.h"

#include <string>

/// What the window shows.
namespace tarnwick::gui {

struct StepItem {
    std::string title;
    bool isEnabled = false;

    bool operator==(const StepItem&) const = default;
};
/// The items of the Edit menu as they are when it opens.
[[nodiscard]] StepItem undoItem();
[[nodiscard]] StepItem redoItem();

[[nodiscard]] int shownPage();
/// Whether assistive technology is told that this page is the current one.
[[nodiscard]] bool isSaidToBeCurrent(Page page);
[[nodiscard]] long rowCount(RuleCategory table);
/// Whether the whole row can be seen.
[[nodiscard]] bool rowIsInSight(RuleCategory table, long row);
/// -1 when no row is selected.
[[nodiscard]] long selectedRow(RuleCategory table);
/// What the cell's text field shows now.
[[nodiscard]] std::string cellText(RuleCategory table, long row, const std::string& column);
[[nodiscard]] bool cellIsOn(RuleCategory table, long row, const std::string& column);
[[nodiscard]] bool cellIsEnabled(RuleCategory table, long row, const std::string& column);
/// How high the part of the table is that can be seen.
[[nodiscard]] double shownHeight(RuleCategory table);
/// How many rows have controls just now.
[[nodiscard]] long builtRows(RuleCategory table);
[[nodiscard]] bool removeButtonIsEnabled(RuleCategory table);
/// Whether the visible button with this title is enabled; false when there is none.
[[nodiscard]] bool buttonIsEnabled(const std::string& title);
/// Whether the visible check box with this title is on.
[[nodiscard]] bool buttonIsOn(const std::string& title);
/// Whether it is shown as mixed, and says so to assistive technology.
[[nodiscard]] bool buttonIsMixed(const std::string& title);
/// How far the visible check box with this title, and the ring around it, reach beyond the title.
[[nodiscard]] double roomRightOfTitle(const std::string& title);
/// Whether a text field with just this text can be seen on the page that is shown.
[[nodiscard]] bool showsText(const std::string& text);
/// Whether a text field of the window is being edited.
[[nodiscard]] bool isEditing();
/// Keeps a picture of the screen when the environment's TARNWICK_PICTURES names a folder for it.
void takePicture(const std::string& name);

} // namespace tarnwick::gui
