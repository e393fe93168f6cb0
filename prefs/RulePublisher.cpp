#include "prefs/RulePublisher.h"

#include "prefs/LocalPreferences.h"
#include "prefs/RuleList.h"
#include "prefs/SharedPreferences.h"

#include <algorithm>

namespace tarnwick {

void RulePublisher::saveData(const PlistValue& value, std::string_view key) {
    SharedPreferences shared(stores_);
    shared.set(key, value);
    shared.synchronize();
}

void RulePublisher::publish(RuleCategory category) {
    const auto& facts = factsOf(category);
    const auto& list = lists_[category];
    if (!facts.enableAllKey.empty()) {
        local_.set(facts.enableAllKey, true);
        if (!std::all_of(list.begin(), list.end(), [](const auto& record) { return record.isEnabled(); })) {
            local_.set(facts.enableAllKey, false);
        }
    }
    saveData(list.enabledToPlist(), facts.listKey);
}

} // namespace tarnwick
