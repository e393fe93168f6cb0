#pragma once

#include "prefs/RuleCategory.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tarnwick {

class RuleLists;
class RuleRows;

/// What finding compares: the texts that the tables show, without their case and diacritics. A list is folded
/// once a change, when it is asked for.
class FoldedRows {
public:
    FoldedRows(const RuleLists& lists, const RuleRows& rows) : lists_(lists), rows_(rows) {}

    /// Of each row its name and then its other texts, each followed by a line break.
    [[nodiscard]] const std::vector<std::string>& of(RuleCategory category) const;

    /// Another number whenever the texts may be others.
    [[nodiscard]] std::size_t revision(RuleCategory category) const;

private:
    struct Texts {
        std::optional<std::size_t> revision;
        std::vector<std::string> rows;
    };

    [[nodiscard]] std::string textsOf(RuleCategory category, long row) const;

    const RuleLists& lists_;
    const RuleRows& rows_;
    mutable PerCategory<Texts> texts_ = PerCategory<Texts>::madeBy([](RuleCategory) { return Texts(); });
};

} // namespace tarnwick
