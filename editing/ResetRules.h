#pragma once

#include "prefs/RuleCategory.h"

namespace tarnwick {

class FactoryLists;
class RulePages;

/// Puts a list back to its factory state, without asking. The common paths have none and are left alone.
class ResetRules {
public:
    ResetRules(FactoryLists& factory, RulePages& pages) : factory_(factory), pages_(pages) {}

    /// Order: rebuild (with its own store and synchronise), reload, disable the remove button, publish.
    void reset(RuleCategory category);

private:
    FactoryLists& factory_;
    RulePages& pages_;
};

} // namespace tarnwick
