#include "ui/RowRemarks.h"

#include "platform/ApplicationBundle.h"
#include "prefs/RuleList.h"
#include "ui/RuleColumns.h"
#include "ui/RuleHealth.h"

namespace tarnwick {

CellRemark RowRemarks::of(RuleCategory category, std::string_view column, long row) const {
    const auto& list = lists_[category];
    if (!list.holds(row)) {
        return {};
    }
    CellRemark remark;
    const auto fault = health_.fault(category, row);
    if (fault != RuleFault::none) {
        remark.warns = true;
        remark.help = bundle_.localized(explanationOf(fault));
        remark.toolTip = remark.help;
    }
    const auto* facts = columnOf(category, column);
    if (!remark.warns && facts && facts->role != ColumnRole::icon &&
        list.isFixed(static_cast<std::size_t>(row))) {
        remark.help = bundle_.localized(whyFixed);
        remark.toolTip = remark.help;
    }
    if (facts && facts->showsPath) {
        remark.isPath = true;
        if (fault != RuleFault::folderUndefined) {
            remark.toolTip.append(remark.warns ? "\n" : "")
                .append(list[static_cast<std::size_t>(row)].text(field::realPath));
        }
    }
    return remark;
}

} // namespace tarnwick
