#pragma once

#include "prefs/RuleCategory.h"

#include <string>
#include <vector>

/// What the window says of rules that something is wrong with.
namespace tarnwick::gui {

struct CellLook {
    bool warns = false;
    bool isSlanted = false;
    std::string toolTip;
    std::string help;
    bool operator==(const CellLook&) const = default;
};

[[nodiscard]] CellLook cellLook(RuleCategory table, long row, const std::string& column);
/// The room that the table has on its page.
[[nodiscard]] double listHeight(RuleCategory table);
/// The user goes to another application and comes back.
void comeBack();
/// Between the warning colour and each ground that rows have in the present appearance.
[[nodiscard]] std::vector<double> contrastsOfWarning();
/// Whether a warning that is drawn in a row of the strong colour of a selection has that of ordinary text.
[[nodiscard]] bool warningIsPlainOnStrongColour();

} // namespace tarnwick::gui
