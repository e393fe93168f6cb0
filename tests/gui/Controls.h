#pragma once

#include <string>
#include <vector>

/// What the window's controls say of themselves, and the order in which the Tab key visits them.
namespace tarnwick::gui {

struct ControlFacts {
    /// "button", "check box", "field", "text", "image", "table" or "other".
    std::string kind;
    /// What assistive technology would read: the control's label, else its own title or text.
    std::string label;

    bool operator==(const ControlFacts&) const = default;
};

/// Every control that can be seen, from the sidebar to the end of the page that is shown.
[[nodiscard]] std::vector<ControlFacts> visibleControls();
/// The labels of the buttons and check boxes beside the lists that say nothing more of themselves than that.
[[nodiscard]] std::vector<std::string> controlsWithoutHelp();

struct BarItemFacts {
    std::string title;
    bool isEnabled = false;
    /// What it says when it cannot be chosen, or does.
    std::string toolTip;
};

/// Every item of the menu bar and of the menus in it, as they are just now; no separators.
[[nodiscard]] std::vector<BarItemFacts> menuItems();

/// The controls that the Tab key visits, beginning with the first page button, until it is back there.
[[nodiscard]] std::vector<ControlFacts> tabOrder();
/// The control that has the keyboard, also while its text is being edited.
[[nodiscard]] ControlFacts keyboardControl();
/// Presses Tab until the control with this label has the keyboard; false when none of them is it.
[[nodiscard]] bool tabTo(const std::string& label);

} // namespace tarnwick::gui
