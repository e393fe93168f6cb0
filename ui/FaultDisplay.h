#pragma once

#include "prefs/RuleCategory.h"

#include <string_view>

namespace tarnwick {

/// Rows of a table, one after another.
struct RowRange {
    long first = 0;
    long count = 0;
};

/// Where it is shown what is wrong with rules. Implementations: the window over AppKit's controls, in memory.
class FaultDisplay {
public:
    virtual ~FaultDisplay() = default;
    [[nodiscard]] virtual RowRange rowsInSight(RuleCategory category) const = 0;
    /// Marks the rows in sight anew, without touching an edit in progress, and says below the table how many
    /// rules something is wrong with; an empty text: none.
    virtual void showFaults(RuleCategory category, std::string_view summary) = 0;
};

} // namespace tarnwick
