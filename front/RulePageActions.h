#pragma once

#import <Foundation/Foundation.h>

#include "prefs/RuleCategory.h"

namespace tarnwick {

/// The selectors of a page's controls; a null selector: the page has no such control.
struct RulePageActions {
    SEL click;
    SEL add;
    SEL remove;
    SEL reset;
    SEL enableAll;
};

[[nodiscard]] RulePageActions actionsOf(RuleCategory category);

} // namespace tarnwick
