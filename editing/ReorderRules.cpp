#include "editing/ReorderRules.h"

#include "editing/ListEditor.h"
#include "editing/RuleTables.h"
#include "prefs/RuleList.h"

namespace tarnwick {
namespace {

/// Above the row before this one, or above the row after it.
long gapBeyond(long row, MoveDirection direction) {
    return direction == MoveDirection::up ? row - 1 : row + 1;
}

} // namespace

std::optional<long> ReorderRules::landing(RuleCategory category, long from, long to) const {
    const auto& list = editor_.list(category);
    if (!list.holds(from) || list.isFixed(static_cast<std::size_t>(from))) {
        return std::nullopt;
    }
    const auto counted = editor_.list(factsOf(category).countedAtDrop).size();
    const auto index = to == static_cast<long>(counted) ? to - 1 : to;
    // Above the list or past the end of it without the record: the record stays where it was.
    return list.holds(index) ? std::optional(index) : std::nullopt;
}

std::optional<long> ReorderRules::acceptDrop(
    std::optional<RuleCategory> target, std::optional<RuleCategory> source, long from, long to) {
    if (!target || source != target) {
        return std::nullopt;
    }
    editor_.endEditing();
    const auto index = landing(*target, from, to);
    if (index) {
        editor_.move(*target, static_cast<std::size_t>(from), static_cast<std::size_t>(*index));
    }
    return index;
}

bool ReorderRules::canMoveSelection(RuleCategory category, MoveDirection direction) const {
    const auto row = tables_.selectedRow(category);
    return landing(category, row, gapBeyond(row, direction)).value_or(row) != row;
}

void ReorderRules::moveSelection(RuleCategory category, MoveDirection direction) {
    editor_.endEditing();
    if (!canMoveSelection(category, direction)) {
        return;
    }
    const auto row = tables_.selectedRow(category);
    if (const auto landed = acceptDrop(category, category, row, gapBeyond(row, direction))) {
        tables_.selectRow(category, *landed);
    }
}

} // namespace tarnwick
