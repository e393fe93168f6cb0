#pragma once

#import <AppKit/AppKit.h>

@class SettingsViewController;

namespace tarnwick {

/// Builds the settings window with all its pages, gives the controller its view and its outlets, and restores
/// where the user last had the window. The caller owns the window.
[[nodiscard]] NSWindow *newSettingsWindow(SettingsViewController *controller);

} // namespace tarnwick
