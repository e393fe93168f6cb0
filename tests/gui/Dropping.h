#pragma once

#include <string>
#include <vector>

/// Drags files and folders over the window, as a file manager does.
namespace tarnwick::gui {

/// Where on the page that is shown.
enum class DropSpot { table, heading, switches };

struct DropResult {
    /// Whether the frame around the table showed while the mouse rested there.
    bool wasHighlighted = false;
    /// Whether it still shows after the end.
    bool isHighlighted = false;
};

/// Drags the files in from the sidebar, rests on the spot, lets go.
DropResult dropFiles(const std::vector<std::string>& paths, DropSpot spot);
/// The same, but drags back to the sidebar before it lets go. Over the sidebar the frame must be gone again;
/// `isHighlighted` tells of that.
DropResult dragFilesOverAndAway(const std::vector<std::string>& paths, DropSpot spot);

} // namespace tarnwick::gui
