#pragma once

#include "editing/RuleEditing.h"
#include "integration/SystemIntegration.h"
#include "prefs/Preferences.h"
#include "ui/Finding.h"
#include "ui/LocalizedStepNames.h"
#include "ui/MenuPreview.h"
#include "ui/Page.h"
#include "ui/RuleCommands.h"
#include "ui/RuleRows.h"
#include "ui/SettingsTransfer.h"
#include "ui/Warnings.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

class ApplicationBundle;
class PreferenceStores;
class RunLoop;
class SettingsWindow;
class SystemLog;
class Workspace;

/// The one controller of the settings window: hands what the window asks for to the operations behind it. It
/// owns the lists, for the life of the process. Main thread only.
///
/// A row that its list does not have changes nothing. All that changes a list or shows another page first
/// ends an edit in progress, into its own row.
class SettingsController {
public:
    SettingsController(const Ports& ports, SettingsWindow& window);
    SettingsController(const SettingsController&) = delete;
    SettingsController& operator=(const SettingsController&) = delete;

    /// When the window is loaded: the preferences, then the window itself.
    void awakeFromNib();
    void viewDidLoad();
    /// Runs once, shortly after the window has been set up.
    void start();

    void showPage(Page page);
    [[nodiscard]] const RuleRows& rows() const { return rows_; }
    /// A click in a table: its remove button is enabled exactly while a removable row is selected.
    void tableClicked(RuleCategory category);

    void add(RuleCategory category) { editing_.adding.add(category); }
    /// False when the list takes nothing of the drop.
    bool addDropped(RuleCategory category, const std::vector<DroppedItem>& items) {
        return editing_.adding.addDropped(category, items);
    }
    void remove(RuleCategory category) { editing_.removing.remove(category); }
    void reset(RuleCategory category) { editing_.resetting.reset(category); }

    /// The enabled records, or one value, for the extension.
    void publish(RuleCategory category) { preferences_.publisher.publish(category); }
    void saveData(const PlistValue& value, std::string_view key) {
        preferences_.publisher.saveData(value, key);
    }
    /// The list alone, as `FactoryLists::reset` says: table and extension are left to the caller.
    void putFactoryListBack(RuleCategory category);

    /// The check box of a record's field in a row.
    void set(RuleCategory category, long row, std::string_view field, bool on) {
        editing_.toggling.set(category, row, field, on);
    }
    void enableAll(RuleCategory category) { editing_.toggling.enableAll(category); }
    /// Turns the enable-all switch of a list that has one, and then the rules.
    void turnAllOnOrOff(RuleCategory category);
    /// A mirrored key of `LocalPreferences` has a new value.
    void switchChanged(std::string_view key, const PlistValue& newValue);

    void acceptDrop(
        std::optional<RuleCategory> target, std::optional<RuleCategory> source, long from, long to);
    void moveSelectedRule(RuleCategory category, MoveDirection direction);

    /// A field with this identifier in this row has been edited.
    void textEdited(std::string_view identifier, long row, std::string_view text);
    void endEditing() { editing_.editor.endEditing(); }
    /// When the process ends.
    void removeHeldFiles() { preferences_.held.removeAll(); }
    void selectPath(RuleCategory category, long row) { editing_.pathChoosing.selectPath(category, row); }
    /// Shows the rule's page and selects its row.
    void showRule(RuleCategory category, long row);

    [[nodiscard]] Warnings& warnings() { return warnings_; }
    [[nodiscard]] const MenuPreview& preview() const { return preview_; }
    [[nodiscard]] SettingsTransfer& transfer() { return transfer_; }
    /// What can be done with the list that is shown and its selected row, as the menus offer it.
    [[nodiscard]] RuleCommands& commands() { return commands_; }
    /// Finding a rule by its texts.
    [[nodiscard]] Finding& finding() { return finding_; }
    /// What the window asks of the system around the program.
    [[nodiscard]] SystemIntegration& integration() { return integration_; }

private:
    PreferenceStores& stores_;
    const ApplicationBundle& bundle_;
    Workspace& workspace_;
    RunLoop& runLoop_;
    SystemLog& log_;
    SettingsWindow& window_;

    Preferences preferences_;
    LocalizedStepNames stepNames_;
    RuleEditing editing_;
    SettingsTransfer transfer_;
    SystemIntegration integration_;
    RuleRows rows_;
    Finding finding_;
    RuleCommands commands_;
    Warnings warnings_;
    MenuPreview preview_;
};

} // namespace tarnwick
