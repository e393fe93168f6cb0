#pragma once

#include "platform/OpenPanel.h"

#include <string>
#include <vector>

namespace tarnwick {

/// Something that the user drags in from the file manager.
struct DroppedItem {
    /// An absolute path.
    std::string path;
    /// A folder that is no package: a package counts as a file, as it does in a chooser.
    bool isFolder = false;
};

/// The paths of the items that a chooser so set up would let the user choose, in their order.
[[nodiscard]] std::vector<std::string> choosablePaths(
    const OpenPanelRequest& chooser, const std::vector<DroppedItem>& items);

} // namespace tarnwick
