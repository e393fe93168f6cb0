#pragma once

#include <string>

/// What is wrong around the application.
namespace tarnwick::gui {

/// From now on the system answers so: the contents of a property list's dictionary, in the text form.
void setSystemState(const std::string& answers);
[[nodiscard]] bool showsNotice(const std::string& text);
/// Of the visible check box with this title.
[[nodiscard]] std::string toolTipOfButton(const std::string& title);

} // namespace tarnwick::gui
