#pragma once

#import <AppKit/AppKit.h>

@class SettingsViewController;

namespace tarnwick {

struct PageLayout;

/// Builds the page of further applications: a tile each, with a button that opens its store page.
/// Autoreleased.
[[nodiscard]] NSView *makeMoreAppsPage(
    const PageLayout &layout, NSSize size, SettingsViewController *controller);

} // namespace tarnwick
