#pragma once

#include <string>
#include <vector>

/// The classes behind the window, by the names that others know them by.
namespace tarnwick::gui {

/// How many arguments the method takes; -1 when the class has none of that name.
[[nodiscard]] int argumentsOf(const std::string& className, const std::string& selector);
[[nodiscard]] int argumentsOfClassMethod(const std::string& className, const std::string& selector);
[[nodiscard]] std::string superclassOf(const std::string& className);

/// What the steps, sent to the controller while it has no outlets, raise; empty when nothing.
[[nodiscard]] std::string raisedWithoutOutlets(const std::vector<std::string>& selectors);

/// Sends the controller a value to save.
void saveText(const std::string& text, const std::string& key);
/// The name of the class of what the controller gives; empty for nothing.
[[nodiscard]] std::string scriptTask();
/// The name of the handler in the event that the controller makes for it.
[[nodiscard]] std::string handlerInEventFor(const std::string& handler);
/// Whether the view that the builder makes for a cell is like the one that its table shows.
[[nodiscard]] bool buildsWhatTheTableShows(const std::string& builder, const std::string& table);

/// The description of a text service with these four values, made in both ways; empty ones are missing.
[[nodiscard]] std::string serviceDescription(const std::vector<std::string>& values);
/// The size of a text in the system font; null measures no text.
struct TextSize {
    double width = 0;
    double height = 0;
};
[[nodiscard]] TextSize measured(const char* text, double pointSize);

} // namespace tarnwick::gui
