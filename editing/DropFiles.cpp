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

bool isTaken(const RuleCategoryFacts& facts, const DroppedItem& item) {
    return item.isFolder == (facts.source == RuleSource::folders) &&
           (facts.allowedType.empty() || isSameType(facts.allowedType, pathExtension(item.path)));
}

} // namespace

std::vector<std::string> droppablePaths(RuleCategory category, const std::vector<DroppedItem>& items) {
    const auto& facts = factsOf(category);
    std::vector<std::string> paths;
    for (const auto& item : items) {
        if (facts.takesDrops && isTaken(facts, item)) {
            paths.push_back(item.path);
        }
    }
    return paths;
}

} // namespace tarnwick
