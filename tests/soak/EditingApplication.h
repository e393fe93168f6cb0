#pragma once

#include "prefs/RuleCategory.h"
#include "ui/SettingsController.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// The real application over the real stores, edited from inside.
namespace tarnwick::soak {

/// Runs the application, and `edit` in its run loop until it says no; does not return.
int runApplication(int argc, char* argv[], std::function<bool()> edit);

/// While the application runs.
[[nodiscard]] SettingsController& controller();
void selectRow(RuleCategory category, long row);
/// Every open panel that is begun from now on is left with OK and these paths.
void answerPanelsWith(const std::vector<std::string>& paths);
/// The items of the Edit menu.
void undo();
void redo();
/// As a switch of the window writes it.
void userSets(std::string_view key, bool on);
[[nodiscard]] std::string userName();

} // namespace tarnwick::soak
