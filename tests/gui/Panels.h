#pragma once

#include <functional>
#include <string>
#include <vector>

/// What a person does in alerts and panels. They block everything else, so this is arranged before what opens
/// them.
namespace tarnwick::gui {

/// Presses the button with this title in the next alert or panel.
void pressInNextPanel(const std::string& buttonTitle);
/// The same in the next alert, be there open or save panels before it.
void pressInNextAlert(const std::string& buttonTitle);
/// What the alert said whose button was pressed last.
[[nodiscard]] std::string lastAlertText();
/// The least room that it left between what it showed and its edges.
[[nodiscard]] double lastAlertMargin();
/// Opens the panel about the application and closes it by Escape; what it says, from the top.
[[nodiscard]] std::vector<std::string> textsOfAboutPanel();

/// What alerts and panels say for this text of the toolkit's.
[[nodiscard]] std::string panelText(const std::string& text);

/// Types a path into the next open panel and confirms.
void chooseInNextPanel(const std::string& path);
/// Types a path into the next save panel and confirms.
void saveInNextPanel(const std::string& path);
/// Presses Escape in the next open panel.
void cancelNextPanel();

/// Calls `look` while the next open or save panel is open, and presses Escape in it.
void lookIntoNextPanel(std::function<void()> look);
/// Calls `look` while the next alert is open, be there panels before it, and closes it without an answer.
void lookIntoNextAlert(std::function<void()> look);

} // namespace tarnwick::gui
