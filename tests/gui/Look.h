#pragma once

#include "ui/Colour.h"

#include <string>

namespace tarnwick::gui {

/// Says to the session, as the system does, that the appearance has changed.
void announceAppearance();
/// How bright the window is just now, 0 to 1, at its lower right corner, which is the page's background.
[[nodiscard]] double brightnessOfPage();
/// The same at the lower left corner, which is the sidebar's.
[[nodiscard]] double brightnessOfSidebar();
/// Gives the window a colour, as the application does when the appearance changes.
void colourTheWindow(const Colour& colour);
/// What is on the screen at the places of the above.
[[nodiscard]] Colour colourOfPage();
[[nodiscard]] Colour colourOfSidebar();
/// The name of the appearance in which a colour is asked for what it is when it is to lie behind a view,
/// while something of another appearance is being drawn.
[[nodiscard]] std::string appearanceForLayers();
/// The brightest pixel of the sidebar's page titles.
[[nodiscard]] double brightestOfPageTitles();
/// The average over the picture of a check box that is off.
[[nodiscard]] double brightnessOfEmptyCheckBox();

} // namespace tarnwick::gui
