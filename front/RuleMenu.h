#pragma once

#import <AppKit/AppKit.h>

#include "prefs/RuleCategory.h"

#include <optional>

@class SettingsViewController;

namespace tarnwick {

/// All commands, or those alone that are about the whole list.
enum class RuleMenuScope { rowAndList, list };

} // namespace tarnwick

/// The commands on rules that the list on the page that is shown has. The keys of the table stand there while
/// the menu is open alone: they must not be taken from a text that is being typed.
@interface RuleMenu : NSMenu <NSMenuDelegate> {
@private
    SettingsViewController *_controller;
    tarnwick::RuleMenuScope _scope;
    std::optional<tarnwick::RuleCategory> _category;
}

/// The controller is not retained.
- (instancetype)initWithController:(SettingsViewController *)controller scope:(tarnwick::RuleMenuScope)scope;

@end
