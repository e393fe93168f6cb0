#include "ui/EnabledRules.h"

#include "platform/ApplicationBundle.h"
#include "prefs/RuleList.h"
#include "ui/NumberText.h"
#include "ui/WindowLayout.h"

namespace tarnwick {

bool isShownOn(const RuleList& list, std::size_t row, std::string_view field) {
    return list.isFixed(row) || list[row].flag(field);
}

EnableAllState EnabledRules::state(bool stored) const {
    if (on > 0 && on < all) {
        return EnableAllState::mixed;
    }
    return stored ? EnableAllState::on : EnableAllState::off;
}

EnabledRules enabledRulesOf(const RuleList& list) {
    EnabledRules rules{.all = list.size()};
    for (std::size_t row = 0; row < list.size(); ++row) {
        rules.on += isShownOn(list, row, field::enable) ? 1 : 0;
    }
    return rules;
}

std::string enabledText(const ApplicationBundle& bundle, const RuleList& list) {
    const auto rules = enabledRulesOf(list);
    const auto key = layoutOf(pageOf(list.category())).enabledCount.formFor(rules.on);
    if (key.empty() || rules.all == 0) {
        return {};
    }
    return filled(bundle.localized(key), {numberText(bundle, rules.on), numberText(bundle, rules.all)});
}

} // namespace tarnwick
