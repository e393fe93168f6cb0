#pragma once

namespace tarnwick::gui {

/// Says to the session, as the system does, that the appearance has changed.
void announceAppearance();
/// How bright the window is just now, 0 to 1, at its lower right corner, which is the page's background.
[[nodiscard]] double brightnessOfPage();
/// The same at the lower left corner, which is the sidebar's.
[[nodiscard]] double brightnessOfSidebar();
/// The brightest pixel of the sidebar's page titles.
[[nodiscard]] double brightestOfPageTitles();
/// The average over the picture of a check box that is off.
[[nodiscard]] double brightnessOfEmptyCheckBox();

} // namespace tarnwick::gui
