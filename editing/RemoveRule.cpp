#include "editing/RemoveRule.h"

#include "editing/ListEditor.h"
#include "editing/RuleTables.h"
#include "prefs/RuleList.h"

namespace tarnwick {

void RemoveRule::remove(RuleCategory category) {
    editor_.endEditing();
    const auto row = tables_.selectedRow(category);
    const auto& list = editor_.list(category);
    if (list.holds(row)) {
        editor_.remove(category, static_cast<std::size_t>(row));
    }
    const auto neighbour = row > 0 ? row - 1 : row;
    if (row <= 0 && tables_.numberOfRows(category) == 0) {
        tables_.setRemoveButtonEnabled(category, false);
    } else if (row < 0) {
        return;
    } else {
        tables_.selectRow(category, neighbour);
    }
    editor_.publish(category);
    if (list.holds(neighbour) && list.isProtected(static_cast<std::size_t>(neighbour))) {
        tables_.setRemoveButtonEnabled(category, false);
    }
}

} // namespace tarnwick
