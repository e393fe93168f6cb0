#pragma once

#import <AppKit/AppKit.h>

@class SettingsOutlets;
@class SettingsViewController;

namespace tarnwick {

struct PageLayout;

/// Builds a page with a table: heading, option switches, enable-all switch, table and buttons. The table and
/// its remove button go into `outlets`; every control is bound to `controller`. Autoreleased.
/// `neededWidth` is raised to what the page's texts need.
[[nodiscard]] NSView *makeRulePage(const PageLayout &layout, NSSize size,
    ::SettingsViewController *controller, SettingsOutlets *outlets, CGFloat &neededWidth);

} // namespace tarnwick
