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

std::vector<std::size_t> RuleList::enabledRows() const {
    std::vector<std::size_t> rows;
    // Nearly all records are enabled as a rule.
    rows.reserve(records_.size());
    for (std::size_t row = 0; row < records_.size(); ++row) {
        if (records_[row].isEnabled()) {
            rows.push_back(row);
        }
    }
    return rows;
}

PlistValue RuleList::enabledToPlist() const {
    const auto rows = enabledRows();
    PlistArray array;
    array.reserve(rows.size());
    for (const auto row : rows) {
        array.push_back(records_[row].toPlist());
    }
    return PlistValue(std::move(array));
}

} // namespace tarnwick
