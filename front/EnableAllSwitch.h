#pragma once

#import "front/PreferenceSwitch.h"

#include "prefs/RuleCategory.h"

@class SettingsViewController;

/// The switch above a table that turns every rule of its list on or off: mixed while some are on and some
/// off, and beside it how many are on. Clicks and what they store are those of any other switch.
@interface EnableAllSwitch : PreferenceSwitch {
@private
    SettingsViewController *_controller;
    tarnwick::RuleCategory _category;
    NSTextField *_count;
}

/// The controller lives longer and is not retained.
- (instancetype)initWithTitle:(NSString *)title
                     category:(tarnwick::RuleCategory)category
                   controller:(SettingsViewController *)controller;

/// What is on is counted anew whenever this table, the category's, has loaded its rows.
- (void)followTable:(NSTableView *)table;

/// The text of how many are on, to be placed beside the switch.
- (NSTextField *)countLabel;

@end
