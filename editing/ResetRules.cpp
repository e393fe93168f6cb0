#include "editing/ResetRules.h"

#include "editing/ListEditor.h"

namespace tarnwick {

void ResetRules::reset(RuleCategory category) {
    if (factsOf(category).hasFactoryList) {
        editor_.endEditing();
        editor_.reset(category);
    }
}

} // namespace tarnwick
