#pragma once

#include "prefs/RuleCategory.h"

#include <string>
#include <vector>

/// What stands out from what in the window, measured in the pixels that are on the screen.
namespace tarnwick::gui {

struct Contrast {
    /// "text", "large text", "picture", "border", "mark" or "knob".
    std::string kind;
    std::string what;
    /// From 1 to 21, between the ground and what differs most from it.
    double measured = 0;
    double wanted = 0;
};

/// Of everything that can be seen in the window with the keyboard, or else in the settings window.
[[nodiscard]] std::vector<Contrast> contrasts();
/// Of the ring around what has the keyboard, outside of it; 1 when there is none.
[[nodiscard]] double contrastOfRing();
/// How far the ground of the selected row is from grey, 0 to 1.
[[nodiscard]] double saturationOfSelection(RuleCategory table);
/// Those that are lower than they ought to be, in words; nothing when all are right.
[[nodiscard]] std::string tooLow(const std::vector<Contrast>& all);

} // namespace tarnwick::gui
