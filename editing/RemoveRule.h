#pragma once

#include "prefs/RuleCategory.h"

namespace tarnwick {

class ListEditor;
class RuleTables;

/// Removes the selected row of a table. Order: list, store, synchronise, reload, template file (CreateNewFile
/// only), selection of a neighbour or disabling of the remove button, publish; last, the remove button of a
/// neighbour that may not be removed. The row itself is not tested for protection: that rests on the remove
/// button alone.
class RemoveRule {
public:
    RemoveRule(ListEditor& editor, RuleTables& tables) : editor_(editor), tables_(tables) {}

    void remove(RuleCategory category);

private:
    ListEditor& editor_;
    RuleTables& tables_;
};

} // namespace tarnwick
