#pragma once

#import <AppKit/AppKit.h>

#include "prefs/RuleCategory.h"

@class SettingsViewController;

/// A page that takes files and folders dragged in from the file manager, for the list that it shows. The
/// table on it is registered for dragged rows alone, so a drag of files passes through to the page.
@interface PageDropView : NSView {
@private
    tarnwick::RuleCategory _category;
    SettingsViewController *_controller;
    NSView *_marked;
    BOOL _isMarking;
}

/// The controller is not retained.
- (instancetype)initWithFrame:(NSRect)frame
                     category:(tarnwick::RuleCategory)category
                   controller:(SettingsViewController *)controller;
/// The subview around which a frame is drawn while a drop would be taken.
- (void)setMarkedView:(NSView *)view;

@end
