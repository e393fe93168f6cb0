#pragma once

#include "prefs/RuleCategory.h"
#include "prefs/RuleRecord.h"

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

    /// Whether the record is always on and stays in its place, and whether it may not be removed. Only the
    /// records of categories with actions are ever either.
    [[nodiscard]] bool isFixed(std::size_t index) const {
        return factsOf(category_).hasActions && records_[index].hasFixedAction();
    }
    [[nodiscard]] bool isProtected(std::size_t index) const {
        return factsOf(category_).hasActions && records_[index].hasProtectedAction();
    }
    /// Whether there is such a row, and it may be removed.
    [[nodiscard]] bool canRemove(long row) const {
        return holds(row) && !isProtected(static_cast<std::size_t>(row));
    }

    void append(RuleRecord record);
    /// Puts the record at `index`; past the end it is appended.
    void insert(std::size_t index, RuleRecord record);
    void assign(std::vector<RuleRecord> records);
    /// Like `assign`, and gives the records that were there.
    [[nodiscard]] std::vector<RuleRecord> exchange(std::vector<RuleRecord> records);
    [[nodiscard]] const std::vector<RuleRecord>& records() const { return records_; }

    /// Another number after every change of the list.
    [[nodiscard]] std::size_t revision() const { return revision_; }

    /// The stored form: an array of dictionaries that share the records' contents.
    [[nodiscard]] PlistValue toPlist() const;
    /// The places of the enabled records: the rules that are published.
    [[nodiscard]] std::vector<std::size_t> enabledRows() const;
    /// The published form: the enabled records only, in order.
    [[nodiscard]] PlistValue enabledToPlist() const;

private:
    RuleCategory category_;
    std::vector<RuleRecord> records_;
    std::size_t revision_ = 0;
};

/// The lists of the running application.
class RuleLists {
public:
    [[nodiscard]] RuleList& operator[](RuleCategory category) { return lists_[category]; }
    [[nodiscard]] const RuleList& operator[](RuleCategory category) const { return lists_[category]; }

private:
    PerCategory<RuleList> lists_ =
        PerCategory<RuleList>::madeBy([](RuleCategory category) { return RuleList(category); });
};

} // namespace tarnwick
