#pragma once

#import <AppKit/AppKit.h>

@class SettingsViewController;

namespace tarnwick {

/// Builds the column at the left: the page buttons, and at its foot the restart button with its hint, the
/// help button and the version. All of them become the controller's outlets. Autoreleased.
[[nodiscard]] NSView *makeSidebar(CGFloat height, SettingsViewController *controller);

} // namespace tarnwick
