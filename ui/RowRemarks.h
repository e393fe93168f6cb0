#pragma once

#include "prefs/RuleCategory.h"

#include <string>
#include <string_view>

namespace tarnwick {

class ApplicationBundle;
class RuleHealth;
class RuleLists;

/// What is said about a cell beside what it shows.
struct CellRemark {
    /// Something is wrong with the rule: its texts are marked.
    bool warns = false;
    /// A path, of which the middle is left out where there is no room for it.
    bool isPath = false;
    /// Empty: the text itself where it is cut off.
    std::string toolTip;
    /// For those who do not see the marks.
    std::string help;
    bool operator==(const CellRemark&) const = default;
};

/// Why the controls of a fixed rule do nothing; a key of the localisation table.
inline constexpr std::string_view whyFixed = "This item is always on and keeps its name and its place.";

class RowRemarks {
public:
    RowRemarks(const RuleLists& lists, const RuleHealth& health, const ApplicationBundle& bundle)
        : lists_(lists), health_(health), bundle_(bundle) {}

    /// Nothing for a row that the list does not have.
    [[nodiscard]] CellRemark of(RuleCategory category, std::string_view column, long row) const;

private:
    const RuleLists& lists_;
    const RuleHealth& health_;
    const ApplicationBundle& bundle_;
};

} // namespace tarnwick
