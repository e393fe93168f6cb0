#pragma once

#include "ui/Notices.h"
#include "ui/RowRemarks.h"
#include "ui/RuleHealth.h"

namespace tarnwick {

class ListEditor;
class SettingsWindow;
struct Ports;

/// What the window warns of: rules that something is wrong with, and what is wrong around the application.
class Warnings {
public:
    Warnings(const Ports& ports, const RuleLists& lists, FinderExtension& extension, ListEditor& editor,
        SettingsWindow& window);
    Warnings(const Warnings&) = delete;
    Warnings& operator=(const Warnings&) = delete;

    /// From now on the window is shown them.
    void watch();
    /// The page of this list is shown now, or one without a list.
    void pageShown(std::optional<RuleCategory> category) { health_.pageShown(category); }
    /// The user comes back to the application.
    void applicationActivated();

    [[nodiscard]] const RowRemarks& remarks() const { return remarks_; }
    /// Selects the next row that something is wrong with.
    void showNextFault(RuleCategory category);
    /// Does what the notice offers.
    void take(const Notice& notice);
    void putAway(NoticeKind kind);

private:
    void lookAround();

    const PreferenceStores& stores_;
    Workspace& workspace_;
    RunLoop& runLoop_;
    FinderExtension& extension_;
    ListEditor& editor_;
    SettingsWindow& window_;
    RuleHealth health_;
    RowRemarks remarks_;
    Notices notices_;
};

} // namespace tarnwick
