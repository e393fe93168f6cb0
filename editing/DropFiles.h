#pragma once

#include "prefs/RuleCategory.h"

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

/// The paths of the items that the category's list takes, in their order: what its chooser would let the user
/// choose, and nothing where it takes no drops.
[[nodiscard]] std::vector<std::string> droppablePaths(
    RuleCategory category, const std::vector<DroppedItem>& items);

} // namespace tarnwick
