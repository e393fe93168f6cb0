#pragma once

#include "platform/WindowControls.h"
#include "prefs/RuleCategory.h"

#include <cstdint>
#include <optional>

namespace tarnwick {

class RulePages;

/// The drag type that tables register and under which the dragged row indexes travel.
inline constexpr std::string_view rowDragType = "NSStringPboardType";

/// Where a drop is proposed: in the gap above a row, or on a row.
enum class DropPlace { above, on };

/// What a drop between rows may do, and nothing on a row.
[[nodiscard]] constexpr std::uint32_t validateDrop(DropPlace place) {
    return place == DropPlace::above ? dragOperationEvery : dragOperationNone;
}

/// Moves a dragged row to another place in its list.
class ReorderRules {
public:
    explicit ReorderRules(RulePages& pages) : pages_(pages) {}

    /// Drops the record at index `from` into the gap above row `to`; the number of rows means below the last.
    /// Nothing happens unless target and source are the same table, nor for a fixed Others action. A record
    /// moved down lands one place further than the gap, except below the last row. An insertion index
    /// outside the list leaves the record where it is and saves nothing. Order: list, store without
    /// synchronising, publish, reload, deselect.
    void acceptDrop(
        std::optional<RuleCategory> target, std::optional<RuleCategory> source, long from, long to);

private:
    RulePages& pages_;
};

} // namespace tarnwick
