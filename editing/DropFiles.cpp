#include "editing/DropFiles.h"

#include "values/PathText.h"

#include <algorithm>

namespace tarnwick {
namespace {

char lowerCase(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

/// The extensions of file types are plain letters, and their case is no matter.
bool isSameType(std::string_view one, std::string_view other) {
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
        [](char first, char second) { return lowerCase(first) == lowerCase(second); });
}

bool isChoosable(const OpenPanelRequest& chooser, const DroppedItem& item) {
    if (item.isFolder) {
        return chooser.canChooseDirectories;
    }
    const auto& types = chooser.allowedFileTypes;
    return chooser.canChooseFiles &&
           (types.empty() || std::any_of(types.begin(), types.end(), [&item](const std::string& type) {
               return isSameType(type, pathExtension(item.path));
           }));
}

} // namespace

std::vector<std::string> choosablePaths(
    const OpenPanelRequest& chooser, const std::vector<DroppedItem>& items) {
    std::vector<std::string> paths;
    for (const auto& item : items) {
        if (isChoosable(chooser, item)) {
            paths.push_back(item.path);
        }
    }
    return paths;
}

} // namespace tarnwick
