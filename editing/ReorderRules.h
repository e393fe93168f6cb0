#pragma once

#include "prefs/RuleCategory.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace tarnwick {

class ListEditor;
class RuleTables;

/// What a table lets a drag do, a bit for each, as the platform numbers them.
using DragOperations = std::uint64_t;
inline constexpr DragOperations dragOperationNone = 0;
inline constexpr DragOperations dragOperationLink = 2;
inline constexpr DragOperations dragOperationMove = 16;
inline constexpr DragOperations dragOperationEvery = ~DragOperations{0};

/// The drag type that tables register and under which the dragged row indexes travel.
inline constexpr std::string_view rowDragType = "NSStringPboardType";

/// Where a drop is proposed: in the gap above a row, or on a row.
enum class DropPlace { above, on };

/// What a drop between rows may do, and nothing on a row.
[[nodiscard]] constexpr DragOperations validateDrop(DropPlace place) {
    return place == DropPlace::above ? dragOperationEvery : dragOperationNone;
}

enum class MoveDirection { up, down };

/// Moves a row to another place in its list.
class ReorderRules {
public:
    ReorderRules(ListEditor& editor, RuleTables& tables) : editor_(editor), tables_(tables) {}

    /// Drops the record at index `from` into the gap above row `to`; the number of rows means below the last.
    /// Nothing happens unless target and source are the same table, nor for a fixed Others action. A record
    /// moved down lands one place further than the gap, except below the last row. An insertion index
    /// outside the list leaves the record where it is and saves nothing. Order: list, store without
    /// synchronising, publish, reload, deselect. Gives the record's new index; nothing when nothing happened.
    std::optional<long> acceptDrop(
        std::optional<RuleCategory> target, std::optional<RuleCategory> source, long from, long to);

    /// Whether that drop would move the selected row at all.
    [[nodiscard]] bool canMoveSelection(RuleCategory category, MoveDirection direction) const;
    /// Drops the selected row into the gap above the row before it, or above the row after it, whatever that
    /// drop does, and selects the record again where it landed.
    void moveSelection(RuleCategory category, MoveDirection direction);

private:
    /// The index at which that drop puts the record; nothing when it leaves the list alone.
    [[nodiscard]] std::optional<long> landing(RuleCategory category, long from, long to) const;

    ListEditor& editor_;
    RuleTables& tables_;
};

} // namespace tarnwick
