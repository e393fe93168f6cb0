#pragma once

#include "prefs/RuleCategory.h"

namespace tarnwick {

class ListEditor;

/// Puts a list back to its factory state, without asking. A category without factory list is left alone.
class ResetRules {
public:
    explicit ResetRules(ListEditor& editor) : editor_(editor) {}

    /// Order: rebuild (with its own store and synchronise), reload, disable the remove button, publish.
    void reset(RuleCategory category);

private:
    ListEditor& editor_;
};

} // namespace tarnwick
