#pragma once

#include <functional>
#include <string>
#include <vector>

/// Runs the real application under tests, which use its window as a person does: see Input.h, Shown.h. Tests
/// are plain C++; the toolkit stays behind these functions.
namespace tarnwick::gui {

/// Builds the application's window, then runs `tests` inside the running application; its result is the exit
/// status. Call from `main`.
int runInApplication(int argc, char* argv[], std::function<int()> tests);

/// Handles events until the condition holds; false when ten seconds have passed without.
bool waitUntil(const std::function<bool()>& condition);
/// Handles what is waiting.
void settle();

/// What the alert said whose button was pressed last.
[[nodiscard]] std::string lastAlertText();
/// Once an alert or panel is up, presses its button with this title; call before what opens it.
void pressInNextPanel(const std::string& buttonTitle);

/// Once an open panel is up, types what is to be chosen, a folder and then perhaps a file in it, and
/// confirms; with nothing to choose, cancels. Call before what opens it.
void chooseInNextPanel(const std::vector<std::string>& texts);

} // namespace tarnwick::gui
