#include "editing/ResetRules.h"

#include "editing/RulePages.h"
#include "prefs/FactoryLists.h"

namespace tarnwick {

void ResetRules::reset(RuleCategory category) {
    pages_.endEditing();
    switch (category) {
    case RuleCategory::createNewFile:
        factory_.resetArrOfCreateNewFile();
        break;
    case RuleCategory::copyFilesTo:
        factory_.resetArrOfCopyFilesTo();
        break;
    case RuleCategory::commonPath:
        return;
    case RuleCategory::customIcon:
        factory_.resetArrOfCustomIcon();
        break;
    case RuleCategory::others:
        factory_.resetArrOfOthers();
        break;
    }
    pages_.reload(category);
    pages_.setRemoveButtonEnabled(category, false);
    pages_.publish(category);
}

} // namespace tarnwick
