#include "editing/ReorderRules.h"

#include "editing/ListEditor.h"
#include "editing/RuleTables.h"
#include "prefs/RuleList.h"

namespace tarnwick {

std::optional<long> ReorderRules::acceptDrop(
    std::optional<RuleCategory> target, std::optional<RuleCategory> source, long from, long to) {
    if (!target || source != target) {
        return std::nullopt;
    }
    editor_.endEditing();
    const auto category = *target;
    const auto& list = editor_.list(category);
    if (!list.holds(from) || list.isFixed(static_cast<std::size_t>(from))) {
        return std::nullopt;
    }
    const auto counted = editor_.list(factsOf(category).countedAtDrop).size();
    const auto index = to == static_cast<long>(counted) ? to - 1 : to;
    if (!list.holds(index)) {
        // Above the list or past the end of it without the record: the record stays where it was.
        return std::nullopt;
    }
    editor_.move(category, static_cast<std::size_t>(from), static_cast<std::size_t>(index));
    return index;
}

bool ReorderRules::canMoveSelection(RuleCategory category, MoveDirection direction) const {
    const auto row = tables_.selectedRow(category);
    const auto rows = static_cast<long>(editor_.list(category).size());
    return direction == MoveDirection::up ? row > 0 && row < rows : row >= 0 && row < rows - 1;
}

void ReorderRules::moveSelection(RuleCategory category, MoveDirection direction) {
    editor_.endEditing();
    if (!canMoveSelection(category, direction)) {
        return;
    }
    const auto row = tables_.selectedRow(category);
    const auto gap = direction == MoveDirection::up ? row - 1 : row + 1;
    if (const auto landed = acceptDrop(category, category, row, gap)) {
        tables_.selectRow(category, *landed);
    }
}

} // namespace tarnwick
