#include "prefs/RuleList.h"

#include <algorithm>
#include <utility>

namespace tarnwick {

void RuleList::append(RuleRecord record) {
    records_.push_back(std::move(record));
    ++revision_;
}

void RuleList::assign(std::vector<RuleRecord> records) {
    records_ = std::move(records);
    ++revision_;
}

std::vector<RuleRecord> RuleList::exchange(std::vector<RuleRecord> records) {
    ++revision_;
    return std::exchange(records_, std::move(records));
}

void RuleList::insert(std::size_t index, RuleRecord record) {
    const auto place = std::min(index, records_.size());
    records_.insert(records_.begin() + static_cast<std::ptrdiff_t>(place), std::move(record));
    ++revision_;
}

PlistValue RuleList::toPlist() const {
    PlistArray array;
    array.reserve(records_.size());
    for (const auto& record : records_) {
        array.push_back(record.toPlist());
    }
    return PlistValue(std::move(array));
}

PlistValue RuleList::enabledToPlist() const {
    PlistArray array;
    // Nearly all records are enabled as a rule.
    array.reserve(records_.size());
    for (const auto& record : records_) {
        if (record.isEnabled()) {
            array.push_back(record.toPlist());
        }
    }
    return PlistValue(std::move(array));
}

} // namespace tarnwick
