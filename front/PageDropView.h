#pragma once

#import <AppKit/AppKit.h>

#include "prefs/RuleCategory.h"

@class RuleTableView;
@class SettingsViewController;

/// A page that takes files and folders dragged in from the file manager, for the list that it shows. The
/// table on it is registered for dragged rows alone, and passes on a drag of files that comes as text too.
@interface PageDropView : NSView {
@private
    tarnwick::RuleCategory _category;
    SettingsViewController *_controller;
    NSView *_list;
    NSView *_mark;
    NSDragOperation _answer;
}

/// The controller is not retained.
- (instancetype)initWithFrame:(NSRect)frame
                     category:(tarnwick::RuleCategory)category
                   controller:(SettingsViewController *)controller;
/// The list's table, around which a frame is shown while a drop would be taken. Call once, when the table has
/// its place on the page.
- (void)takeDropsFor:(RuleTableView *)table;

@end
