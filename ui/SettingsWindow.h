#pragma once

#include "editing/ReorderRules.h"
#include "editing/RuleTables.h"
#include "ui/FaultDisplay.h"
#include "ui/Notices.h"
#include "ui/Page.h"

#include <span>
#include <string_view>
#include <vector>

namespace tarnwick {

struct Colour;

/// The settings window as the controller acts on it. A control that it lacks makes what is asked of it do
/// nothing. Implementations: the window over AppKit's controls, in memory.
class SettingsWindow : public RuleTables, public FaultDisplay {
public:
    virtual void showVersion(std::string_view text) = 0;
    virtual void showPage(Page page) = 0;
    /// The background of the page button's layer.
    virtual void setPageButtonBackground(Page page, const Colour& colour) = 0;
    /// Begins to edit the text that the selected row of the table has in this column.
    virtual void editSelectedRow(RuleCategory category, std::string_view column) = 0;
    virtual void hideRestartButton() = 0;
    /// The same title of the help button, centred, in this colour.
    virtual void setHelpTitleColour(const Colour& colour) = 0;

    /// At the head of the window, in place of those before.
    virtual void showNotices(const std::vector<Notice>& notices) = 0;
    /// The switch of this key cannot be changed by the user, and says so; or it can again.
    virtual void setSwitchForced(std::string_view key, bool forced) = 0;

    /// What a drag of the table's rows may do outside the application and within it, and the only type of
    /// drag that the table accepts.
    virtual void setUpDragging(RuleCategory category, DragOperations outside, DragOperations inside,
        std::string_view draggedType) = 0;

    /// From now on the controller is told of new values of these keys in the standard preference domain, on
    /// the thread that changes them, and of applications that are activated and deactivated.
    virtual void observeSwitches(std::span<const std::string_view> keys) = 0;
    virtual void observeApplicationChanges() = 0;
};

} // namespace tarnwick
