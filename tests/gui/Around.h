#pragma once

#include <string>

/// What is wrong around the application.
namespace tarnwick::gui {

/// From now on the system answers so: the contents of a property list's dictionary, in the text form.
void setSystemState(const std::string& answers);
struct NoticePlace {
    double textHeight = 0;
    /// Of all that belongs to it.
    double height = 0;
    /// Of the middle of its text above that of its line.
    double aboveMiddle = 0;
};
/// Of the notice with this text; empty when it is not shown.
[[nodiscard]] NoticePlace placeOfNotice(const std::string& text);
[[nodiscard]] bool showsNotice(const std::string& text);
/// Of the visible check box with this title.
[[nodiscard]] std::string toolTipOfButton(const std::string& title);

} // namespace tarnwick::gui
