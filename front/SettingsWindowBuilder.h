#pragma once

#import <AppKit/AppKit.h>

@class SettingsViewController;

namespace tarnwick {

/// Builds what is in the window: the sidebar and all pages, with the controller's outlets. Autoreleased.
/// `minimumWidth` becomes what the texts of all pages need.
[[nodiscard]] NSView *makeSettingsView(SettingsViewController *controller, CGFloat &minimumWidth);

/// Builds the window around the controller's view, and restores where the user last had it. The caller owns
/// the window.
[[nodiscard]] NSWindow *newSettingsWindow(SettingsViewController *controller);

} // namespace tarnwick
