#pragma once

#import <AppKit/AppKit.h>

@class SettingsViewController;

namespace tarnwick {

/// Builds the application's menu bar and makes it the main menu.
void installMainMenu(SettingsViewController *controller);

} // namespace tarnwick
