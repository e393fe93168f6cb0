#pragma once

#include "prefs/RuleCategory.h"
#include "prefs/RuleRecord.h"

#include <array>
#include <cstddef>
#include <vector>

namespace tarnwick {

/// The ordered records of one category, in menu order. Indexes count from 0 and must be in range unless a
/// method says otherwise.
class RuleList {
public:
    explicit RuleList(RuleCategory category) : category_(category) {}
    RuleList(RuleCategory category, std::vector<RuleRecord> records)
        : category_(category), records_(std::move(records)) {}

    [[nodiscard]] RuleCategory category() const { return category_; }
    [[nodiscard]] std::size_t size() const { return records_.size(); }
    [[nodiscard]] bool empty() const { return records_.empty(); }
    /// Whether a row number as a control carries it (possibly negative) names a record.
    [[nodiscard]] bool holds(long row) const {
        return row >= 0 && static_cast<std::size_t>(row) < records_.size();
    }
    [[nodiscard]] const RuleRecord& operator[](std::size_t index) const { return records_[index]; }
    [[nodiscard]] auto begin() const { return records_.begin(); }
    [[nodiscard]] auto end() const { return records_.end(); }

    void append(RuleRecord record) { records_.push_back(std::move(record)); }
    /// Puts the record at `index`; past the end it is appended.
    void insert(std::size_t index, RuleRecord record);
    void remove(std::size_t index) { records_.erase(records_.begin() + static_cast<std::ptrdiff_t>(index)); }
    /// Takes the record at `index` out and puts a changed one in the same place.
    void replace(std::size_t index, RuleRecord record) { records_[index] = std::move(record); }
    void assign(std::vector<RuleRecord> records) { records_ = std::move(records); }

    /// The stored form: an array of dictionaries that share the records' contents.
    [[nodiscard]] PlistValue toPlist() const;
    /// The published form: the enabled records only, in order.
    [[nodiscard]] PlistValue enabledToPlist() const;

private:
    RuleCategory category_;
    std::vector<RuleRecord> records_;
};

/// The five lists of the running application.
class RuleLists {
public:
    [[nodiscard]] RuleList& operator[](RuleCategory category) {
        return lists_[static_cast<std::size_t>(category)];
    }
    [[nodiscard]] const RuleList& operator[](RuleCategory category) const {
        return lists_[static_cast<std::size_t>(category)];
    }

private:
    std::array<RuleList, 5> lists_{RuleList(RuleCategory::createNewFile), RuleList(RuleCategory::copyFilesTo),
        RuleList(RuleCategory::commonPath), RuleList(RuleCategory::customIcon),
        RuleList(RuleCategory::others)};
};

} // namespace tarnwick
