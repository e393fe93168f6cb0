#include "editing/ReorderRules.h"

#include "editing/RulePages.h"

namespace tarnwick {

std::optional<long> ReorderRules::acceptDrop(
    std::optional<RuleCategory> target, std::optional<RuleCategory> source, long from, long to) {
    if (!target || source != target) {
        return std::nullopt;
    }
    pages_.endEditing();
    const auto category = *target;
    auto& list = pages_.list(category);
    if (!list.holds(from)) {
        return std::nullopt;
    }
    const auto fromIndex = static_cast<std::size_t>(from);
    if (category == RuleCategory::others && list[fromIndex].hasFixedAction()) {
        return std::nullopt;
    }
    // For the Others list the records counted are, on purpose, those of the custom icons.
    const auto counted =
        pages_.list(category == RuleCategory::others ? RuleCategory::customIcon : category).size();
    const auto index = to == static_cast<long>(counted) ? to - 1 : to;
    if (!list.holds(index)) {
        // Above the list or past the end of it without the record: the record stays where it was.
        return std::nullopt;
    }
    auto record = list[fromIndex];
    list.remove(fromIndex);
    list.insert(static_cast<std::size_t>(index), std::move(record));
    pages_.store(category);
    pages_.publish(category);
    pages_.reload(category);
    pages_.deselectAll(category);
    return index;
}

bool ReorderRules::canMoveSelection(RuleCategory category, MoveDirection direction) const {
    const auto row = pages_.selectedRow(category);
    const auto rows = static_cast<long>(pages_.list(category).size());
    return direction == MoveDirection::up ? row > 0 && row < rows : row >= 0 && row < rows - 1;
}

void ReorderRules::moveSelection(RuleCategory category, MoveDirection direction) {
    pages_.endEditing();
    if (!canMoveSelection(category, direction)) {
        return;
    }
    const auto row = pages_.selectedRow(category);
    const auto gap = direction == MoveDirection::up ? row - 1 : row + 1;
    if (const auto landed = acceptDrop(category, category, row, gap)) {
        pages_.selectRow(category, *landed);
    }
}

} // namespace tarnwick
