#pragma once

#include "prefs/RuleCategory.h"

#import "tests/driving/Driving.h"

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

using driving::firstView;
/// The first button with this title, from the view inwards, that is not hidden.
[[nodiscard]] NSButton *visibleButton(NSView *view, NSString *title);

} // namespace tarnwick::gui
