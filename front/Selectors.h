#pragma once

#import <Foundation/Foundation.h>

#include "prefs/RuleCategory.h"
#include "ui/MenuLayout.h"
#include "ui/Page.h"

#include <string_view>
#include <utility>
#include <vector>

namespace tarnwick {

/// The one place that says which selector stands for what. A null selector: there is no such control.

/// What the controls of a category's page send.
struct RuleActions {
    SEL click = nullptr;
    SEL add = nullptr;
    SEL remove = nullptr;
    SEL reset = nullptr;
    SEL enableAll = nullptr;
    /// Gives the row that is the sender's tag another folder.
    SEL choosePath = nullptr;
    /// Sent by the table.
    SEL doubleClick = nullptr;
    /// The check boxes of the rows, by the field that they turn on and off.
    std::vector<std::pair<std::string_view, SEL>> switches;
};

[[nodiscard]] const RuleActions& actionsOf(RuleCategory category);
[[nodiscard]] SEL actionOf(RuleCategory category, std::string_view switchedField);
[[nodiscard]] SEL actionOf(Page page);

struct CommandAction {
    SEL selector;
    /// Goes to the settings controller; otherwise to the first responder that answers.
    bool isTheControllers;
};

[[nodiscard]] CommandAction actionOf(Command command);

} // namespace tarnwick
