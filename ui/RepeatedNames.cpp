#include "ui/RepeatedNames.h"

#include "prefs/RuleList.h"
#include "values/PathText.h"

namespace tarnwick {
namespace {

std::string_view nameOf(const RuleRecord& record) {
    const auto name = record.text(field::displayName);
    return name.empty() ? lastPathComponent(record.text(field::realPath)) : name;
}

} // namespace

bool RepeatedNames::has(RuleCategory category, std::size_t row) const {
    const auto& list = lists_[category];
    auto& count = counts_[category];
    if (count.revision != list.revision()) {
        count.revision = list.revision();
        count.rows.clear();
        for (const auto& record : list) {
            ++count.rows[nameOf(record)];
        }
    }
    return count.rows[nameOf(list[row])] > 1;
}

} // namespace tarnwick
