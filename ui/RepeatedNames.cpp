#include "ui/RepeatedNames.h"

#include "prefs/RuleList.h"
#include "values/PathText.h"

#include <algorithm>

namespace tarnwick {
namespace {

std::string_view nameOf(const RuleRecord& record) {
    const auto name = record.text(field::displayName);
    return name.empty() ? lastPathComponent(record.text(field::realPath)) : name;
}

} // namespace

bool RepeatedNames::has(RuleCategory category, std::size_t row) const {
    const auto& list = lists_[category];
    auto& count = counts_[static_cast<std::size_t>(category)];
    if (!std::equal(list.begin(), list.end(), count.records.begin(), count.records.end())) {
        count.rows.clear();
        count.records.assign(list.begin(), list.end());
        for (const auto& record : count.records) {
            ++count.rows[nameOf(record)];
        }
    }
    return count.rows[nameOf(list[row])] > 1;
}

} // namespace tarnwick
