#pragma once

#import <AppKit/AppKit.h>

namespace tarnwick {

/// Makes the Tab key go through everything beside the tab view, then through the page that it shows, each
/// from top to bottom and from left to right, and back to the start. Call again when another page is shown.
/// Gives the first of them; nil when nothing takes keys.
NSView* linkKeyViews(NSTabView* tabView);

} // namespace tarnwick
