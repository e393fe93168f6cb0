#include "editing/ReorderRules.h"

#include "editing/RulePages.h"

namespace tarnwick {

void ReorderRules::acceptDrop(
    std::optional<RuleCategory> target, std::optional<RuleCategory> source, long from, long to) {
    if (!target || source != target) {
        return;
    }
    const auto category = *target;
    auto& list = pages_.list(category);
    if (!list.holds(from)) {
        return;
    }
    const auto fromIndex = static_cast<std::size_t>(from);
    if (category == RuleCategory::others && list[fromIndex].hasFixedAction()) {
        return;
    }
    // For the Others list the records counted are, on purpose, those of the custom icons.
    const auto counted =
        pages_.list(category == RuleCategory::others ? RuleCategory::customIcon : category).size();
    const auto index = to == static_cast<long>(counted) ? to - 1 : to;
    if (!list.holds(index)) {
        // Above the list or past the end of it without the record: the record stays where it was.
        return;
    }
    auto record = list[fromIndex];
    list.remove(fromIndex);
    list.insert(static_cast<std::size_t>(index), std::move(record));
    pages_.store(category);
    pages_.publish(category);
    pages_.reload(category);
    pages_.deselectAll(category);
}

} // namespace tarnwick
