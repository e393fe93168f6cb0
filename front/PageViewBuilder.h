#pragma once

#import <AppKit/AppKit.h>

@class SettingsViewController;

namespace tarnwick {

struct PageLayout;

/// Builds a page with a table: heading, option switches, enable-all switch, table and buttons. The table and
/// its remove button become outlets of `controller`, to which every control is bound. Autoreleased.
/// `neededWidth` is raised to what the page's texts need.
[[nodiscard]] NSView *makeRulePage(
    const PageLayout &layout, NSSize size, SettingsViewController *controller, CGFloat &neededWidth);

} // namespace tarnwick
