#include "editing/ToggleRules.h"

#include "editing/RulePages.h"
#include "prefs/LocalPreferences.h"
#include "prefs/SharedPreferences.h"

#include <vector>

namespace tarnwick {
namespace {

constexpr int asInteger(bool on) {
    return on ? 1 : 0;
}

RuleRecord switched(const RuleRecord& record, RuleCategory category, std::string_view key, bool on) {
    if (category == RuleCategory::others && record.hasFixedAction()) {
        return record;
    }
    // A target without a folder cannot be switched on.
    const auto allowed =
        category != RuleCategory::copyFilesTo || record.text(field::realPath) != undefinedPath;
    return record.with(key, asInteger(on && allowed));
}

} // namespace

void ToggleRules::setEnabled(RuleCategory category, long row, bool on) {
    setFlag(category, row, field::enable, on);
}

void ToggleRules::setEnabledInMainMenu(long row, bool on) {
    setFlag(RuleCategory::createNewFile, row, field::enableMainMenu, on);
}

void ToggleRules::setFlag(RuleCategory category, long row, std::string_view key, bool on) {
    pages_.endEditing();
    auto& list = pages_.list(category);
    if (!list.holds(row)) {
        return;
    }
    const auto index = static_cast<std::size_t>(row);
    list.replace(index, switched(list[index], category, key, on));
    pages_.storeAndSynchronize(category);
    pages_.reload(category);
    pages_.publish(category);
}

void ToggleRules::enableAll(RuleCategory category) {
    const auto key = factsOf(category).enableAllKey;
    if (key.empty()) {
        return;
    }
    // What the switch has stored goes ahead of an edit in progress, whose publishing may store it anew.
    const auto enable = local_.flag(key);
    pages_.endEditing();
    auto& list = pages_.list(category);
    std::vector<RuleRecord> records;
    records.reserve(list.size());
    for (const auto& record : list) {
        const auto fixed = category == RuleCategory::others && record.hasFixedAction();
        records.push_back(record.with(field::enable, fixed ? PlistValue(1) : PlistValue(enable)));
    }
    list.assign(std::move(records));
    pages_.reload(category);
    pages_.store(category);
    pages_.publish(category);
}

void mirrorSwitch(PreferenceStores& stores, std::string_view key, const PlistValue& newValue) {
    SharedPreferences shared(stores);
    shared.set(key, flagValue(newValue).value_or(false));
    shared.synchronize();
}

} // namespace tarnwick
