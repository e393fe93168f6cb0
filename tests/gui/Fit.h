#pragma once

#include <string>
#include <vector>

/// Whether what is shown has the room that it needs.
namespace tarnwick::gui {

/// The window becomes as small as it can be.
void makeWindowSmallest();
/// As narrow as it can be, and so high that all rows of each page are in sight.
void makeWindowNarrow();

struct Fit {
    /// A sentence for each text that is cut off, control that reaches beyond its place, and two that meet.
    std::vector<std::string> faults;
    /// How many controls there are beside those of the rows.
    std::size_t controls = 0;
};

/// Of the alert or panel that is open, or else of the window.
[[nodiscard]] Fit fitOfWhatIsShown();

/// Takes room away from the hint in the sidebar, puts a button of the page over the one beside it, and gives
/// both back.
void spoilFit();
void mendFit();

} // namespace tarnwick::gui
