#pragma once

#import <Foundation/Foundation.h>

#include "prefs/RuleCategory.h"
#include "ui/CellView.h"
#include "ui/MenuLayout.h"
#include "ui/Page.h"

namespace tarnwick {

/// The one place that says which selector stands for what. A null selector: there is no such control.

/// What the controls of a category's page send.
struct RuleActions {
    SEL click = nullptr;
    SEL add = nullptr;
    SEL remove = nullptr;
    SEL reset = nullptr;
    SEL enableAll = nullptr;
    SEL enable = nullptr;
    SEL enableMainMenu = nullptr;
};

[[nodiscard]] const RuleActions& actionsOf(RuleCategory category);
[[nodiscard]] SEL actionOf(RuleCategory category, RowSwitch rowSwitch);
[[nodiscard]] SEL actionOf(Page page);

struct CommandAction {
    SEL selector;
    /// Goes to the settings controller; otherwise to the first responder that answers.
    bool isTheControllers;
};

[[nodiscard]] CommandAction actionOf(Command command);

} // namespace tarnwick
