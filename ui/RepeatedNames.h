#pragma once

#include "prefs/RuleCategory.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <unordered_map>

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
    /// A table asks for each of its cells: a list is counted once a change.
    struct Count {
        std::optional<std::size_t> revision;
        /// The names lie in the records of that revision.
        std::unordered_map<std::string_view, std::size_t> rows;
    };

    const RuleLists& lists_;
    mutable PerCategory<Count> counts_ = PerCategory<Count>::madeBy([](RuleCategory) { return Count(); });
};

} // namespace tarnwick
