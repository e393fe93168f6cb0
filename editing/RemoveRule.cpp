#include "editing/RemoveRule.h"

#include "editing/RulePages.h"

namespace tarnwick {

void RemoveRule::remove(RuleCategory category) {
    pages_.endEditing();
    const auto row = pages_.selectedRow(category);
    auto& list = pages_.list(category);
    if (list.holds(row)) {
        const auto index = static_cast<std::size_t>(row);
        const auto removed = list[index];
        list.remove(index);
        const bool isTemplate = category == RuleCategory::createNewFile;
        if (isTemplate) {
            templates_.noteRemoval(removed);
        }
        pages_.storeAndSynchronize(category);
        pages_.reload(category);
        if (isTemplate) {
            templates_.remove(removed);
        }
    }
    const auto neighbour = row > 0 ? row - 1 : row;
    if (row <= 0 && pages_.numberOfRows(category) == 0) {
        pages_.setRemoveButtonEnabled(category, false);
    } else if (row < 0) {
        return;
    } else {
        pages_.selectRow(category, neighbour);
    }
    pages_.publish(category);
    if (category == RuleCategory::others && list.holds(neighbour) &&
        list[static_cast<std::size_t>(neighbour)].hasProtectedAction()) {
        pages_.setRemoveButtonEnabled(category, false);
    }
}

} // namespace tarnwick
