#include "editing/ToggleRules.h"

#include "editing/ListEditor.h"
#include "prefs/LocalPreferences.h"
#include "prefs/RuleList.h"

#include <vector>

namespace tarnwick {
namespace {

/// A target without a folder cannot be switched on.
bool canBeOn(const RuleList& list, std::size_t index) {
    return list.category() != RuleCategory::copyFilesTo || list[index].text(field::realPath) != undefinedPath;
}

RuleRecord switched(const RuleList& list, std::size_t index, std::string_view flag, bool on) {
    const auto& record = list[index];
    if (list.isFixed(index)) {
        return record;
    }
    return record.with(flag, on && canBeOn(list, index) ? 1 : 0);
}

StepKind kindOf(std::string_view flag, bool on) {
    if (flag == field::enableMainMenu) {
        return on ? StepKind::showInMainMenu : StepKind::hideFromMainMenu;
    }
    return on ? StepKind::turnOn : StepKind::turnOff;
}

} // namespace

void ToggleRules::set(RuleCategory category, long row, std::string_view field, bool on) {
    editor_.endEditing();
    const auto& list = editor_.list(category);
    if (list.holds(row)) {
        const auto index = static_cast<std::size_t>(row);
        editor_.replace(category, index, switched(list, index, field, on), kindOf(field, on));
    }
}

bool ToggleRules::canTurnOn(RuleCategory category, long row) const {
    const auto& list = editor_.list(category);
    return list.holds(row) && canBeOn(list, static_cast<std::size_t>(row));
}

void ToggleRules::enableAll(RuleCategory category) {
    const auto key = factsOf(category).enableAllKey;
    if (key.empty()) {
        return;
    }
    // What the switch has stored goes ahead of an edit in progress, whose publishing may store it anew.
    const auto enable = local_.flag(key);
    editor_.endEditing();
    const auto& list = editor_.list(category);
    std::vector<RuleRecord> records;
    records.reserve(list.size());
    for (std::size_t index = 0; index < list.size(); ++index) {
        const auto value = list.isFixed(index) ? PlistValue(1) : PlistValue(enable);
        records.push_back(list[index].with(field::enable, value));
    }
    editor_.assign(category, std::move(records), enable ? StepKind::enableAll : StepKind::disableAll);
}

} // namespace tarnwick
