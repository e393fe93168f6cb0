#pragma once

#include <string>

/// What a person does in the next alert or panel, which blocks everything else: arranged before it opens.
namespace tarnwick::testing {

/// Makes the process an application whose panels can be shown.
void becomeApplication();
/// Presses the button with this title.
void pressInNextAlert(const std::string& title);
/// Selects the only file of the folder that the panel shows, and confirms.
void chooseOnlyFileInNextPanel();
/// Confirms as the panel comes up.
void confirmNextPanel();
void cancelNextPanel();

} // namespace tarnwick::testing
