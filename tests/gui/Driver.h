#pragma once

#include <functional>

/// Runs the real application under tests, which use its window as a person does: see Input.h, Panels.h and
/// Shown.h. Tests are plain C++; the toolkit stays behind these functions.
namespace tarnwick::gui {

/// Builds the application's window, then runs `tests` inside the running application; its result is the exit
/// status. Call from `main`.
int runInApplication(int argc, char* argv[], std::function<int()> tests);

/// Handles events until the condition holds; false when ten seconds have passed without.
bool waitUntil(const std::function<bool()>& condition);
/// Handles what is waiting.
void settle();

} // namespace tarnwick::gui
