#pragma once

#include "prefs/RuleCategory.h"

#import <AppKit/AppKit.h>

#include <functional>
#include <string>

@class SettingsViewController;

namespace tarnwick {
class MainInterface;
}

/// The toolkit's side of the window that the tests drive.
namespace tarnwick::gui {

/// Whose window it is, from now on. Before anything else here.
void useInterface(const MainInterface &interface);

[[nodiscard]] SettingsViewController *settingsController();
[[nodiscard]] NSWindow *settingsWindow();
/// The page that is shown.
[[nodiscard]] NSView *pageView();
[[nodiscard]] NSTableView *tableOf(RuleCategory category);
/// The control inside a cell, or the cell itself when it is one; its row is scrolled to.
[[nodiscard]] NSControl *controlIn(RuleCategory category, long row, const std::string &column);

/// From `view` downwards, hidden ones and what is in them left out, the first view that `matches`.
[[nodiscard]] NSView *firstView(NSView *view, const std::function<bool(NSView *)> &matches);
/// The same for a button with this title.
[[nodiscard]] NSButton *visibleButton(NSView *view, NSString *title);

} // namespace tarnwick::gui
