#pragma once

#include "platform/Platform.h"
#include "prefs/RuleCategory.h"
#include "prefs/TemplateFiles.h"

namespace tarnwick {

class LocalPreferences;
class RulePages;

/// Removes the selected row of a table. Order: list, store, synchronise, reload, template file (CreateNewFile
/// only), selection of a neighbour or disabling of the remove button, publish; for Others, last, the remove
/// button of a neighbour that may not be removed. The row itself is not tested for protection: that rests on
/// the remove button alone.
class RemoveRule {
public:
    RemoveRule(const Platform& platform, LocalPreferences& local, RulePages& pages)
        : templates_(platform, local), pages_(pages) {}

    void remove(RuleCategory category);

private:
    TemplateFiles templates_;
    RulePages& pages_;
};

} // namespace tarnwick
