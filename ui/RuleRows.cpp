#include "ui/RuleRows.h"

#include "platform/ApplicationBundle.h"
#include "prefs/RuleList.h"
#include "ui/CountText.h"
#include "ui/NumberText.h"
#include "ui/RuleColumns.h"

namespace tarnwick {

long RuleRows::count(RuleCategory category) const {
    return static_cast<long>(lists_[category].size());
}

EnabledRules RuleRows::enabled(RuleCategory category) const {
    return enabledRulesOf(lists_[category]);
}

std::string RuleRows::enabledText(RuleCategory category) const {
    return tarnwick::enabledText(bundle_, lists_[category]);
}

CellView RuleRows::cell(RuleCategory category, std::string_view column, long row) const {
    const auto& list = lists_[category];
    const auto* facts = columnOf(category, column);
    if (!list.holds(row) || !facts) {
        return {};
    }
    return (cells_.*facts->cell)(*facts, list, static_cast<std::size_t>(row));
}

std::string RuleRows::label(RuleCategory category, std::string_view column, long row) const {
    const auto* facts = columnOf(category, column);
    if (!lists_[category].holds(row) || !facts) {
        return {};
    }
    return filled(bundle_.localized(facts->label), {spokenName(category, static_cast<std::size_t>(row))});
}

std::string RuleRows::spokenName(RuleCategory category, std::size_t row) const {
    auto name = cells_.shownName(lists_[category], row);
    if (!name.empty() && !repeatedNames_.has(category, row)) {
        return name;
    }
    auto number = filled(bundle_.localized("row %@"), {numberText(bundle_, row + 1)});
    return name.empty() ? number : name + " (" + number + ")";
}

} // namespace tarnwick
