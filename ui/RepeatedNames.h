#pragma once

#include "prefs/RuleCategory.h"
#include "prefs/RuleRecord.h"

#include <array>
#include <cstddef>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tarnwick {

class RuleLists;

/// Knows which rows have a name that another row of their list has too. Names are compared as stored, before
/// they are translated.
class RepeatedNames {
public:
    explicit RepeatedNames(const RuleLists& lists) : lists_(lists) {}

    /// The row must be in range.
    [[nodiscard]] bool has(RuleCategory category, std::size_t row) const;

private:
    /// A table asks for each of its cells: a long list is counted once, not for each.
    struct Count {
        /// What was counted. The names lie in these records.
        std::vector<RuleRecord> records;
        std::unordered_map<std::string_view, std::size_t> rows;
    };

    const RuleLists& lists_;
    mutable std::array<Count, allRuleCategories.size()> counts_;
};

} // namespace tarnwick
