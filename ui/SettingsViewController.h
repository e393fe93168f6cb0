#pragma once

#include "editing/AddRules.h"
#include "editing/ChoosePath.h"
#include "editing/DropFiles.h"
#include "editing/EditText.h"
#include "editing/RemoveRule.h"
#include "editing/ReorderRules.h"
#include "editing/ResetRules.h"
#include "editing/RulePages.h"
#include "editing/ToggleRules.h"
#include "integration/FinderExtension.h"
#include "integration/ScriptHelper.h"
#include "platform/Platform.h"
#include "prefs/FactoryLists.h"
#include "prefs/LocalPreferences.h"
#include "prefs/PreferenceLoading.h"
#include "prefs/RuleList.h"
#include "prefs/RulePublisher.h"
#include "ui/CellView.h"
#include "ui/Outlets.h"
#include "ui/RepeatedNames.h"
#include "ui/RowViews.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

/// The one controller of the settings window: wires the window's actions to the operations behind them. It
/// owns the five lists, for the life of the process. Main thread only.
///
/// Row switches, text fields and the path button carry their row index; a row that its list does not have
/// changes nothing.
class SettingsViewController {
public:
    explicit SettingsViewController(const Platform& platform);
    SettingsViewController(const SettingsViewController&) = delete;
    SettingsViewController& operator=(const SettingsViewController&) = delete;

    /// The window's controls; called before `awakeFromNib`.
    void connect(const Outlets& outlets);

    // Window load
    void awakeFromNib();
    void viewDidLoad();
    /// Runs once, shortly after the window has been set up.
    void start();

    // Pages
    void createNewFilePressed() { showPage(Page::createNewFile); }
    void copyFilesToPressed() { showPage(Page::copyFilesTo); }
    void commonPathPressed() { showPage(Page::commonPath); }
    void customIconFolder() { showPage(Page::customIcon); }
    void otherOptionPressed() { showPage(Page::others); }
    void moreAppPressed() { showPage(Page::moreApps); }

    // Tables
    [[nodiscard]] long numberOfRows(RuleCategory table) const;
    [[nodiscard]] double heightOfRow() const { return rowHeight; }
    /// An index that the list does not have gives an empty cell.
    [[nodiscard]] CellView viewForTableColumn(RuleCategory table, std::string_view column, long row) const;

    /// What that cell's control says of itself to those who do not see it.
    [[nodiscard]] std::string accessibilityLabel(RuleCategory table, std::string_view column, long row) const;

    // A click in a table: its remove button is enabled exactly while a removable row is selected.
    void createNewFileViewClick() { updateRemoveButton(RuleCategory::createNewFile); }
    void copyFilesToViewClick() { updateRemoveButton(RuleCategory::copyFilesTo); }
    void commonPathViewClick() { updateRemoveButton(RuleCategory::commonPath); }
    void customIconViewClick() { updateRemoveButton(RuleCategory::customIcon); }
    void othersViewClick() { updateRemoveButton(RuleCategory::others); }

    // Adding
    void addCreateNewFileRule() { addRules_.add(RuleCategory::createNewFile); }
    void addSendFilesToRule() { addRules_.add(RuleCategory::copyFilesTo); }
    void addCommonPathRule() { addRules_.add(RuleCategory::commonPath); }
    void addCustomIconRule() { addRules_.add(RuleCategory::customIcon); }
    void addOthersRule() { addRules_.add(RuleCategory::others); }

    /// The paths of a drop from the file manager that the category's list takes: what its chooser would let
    /// be chosen; nothing for the further items.
    [[nodiscard]] std::vector<std::string> droppablePaths(
        RuleCategory category, const std::vector<DroppedItem>& items) const;
    /// Adds them as if chosen, without touching the remembered folder; false when there are none.
    bool addDroppedItems(RuleCategory category, const std::vector<DroppedItem>& items);

    // Removing
    void removeCreateNewFileRule() { removeRule_.remove(RuleCategory::createNewFile); }
    void removeCopyFilesToRule() { removeRule_.remove(RuleCategory::copyFilesTo); }
    void removeCommondPathRule() { removeRule_.remove(RuleCategory::commonPath); }
    void removeCustomIconRule() { removeRule_.remove(RuleCategory::customIcon); }
    void removeOthersRule() { removeRule_.remove(RuleCategory::others); }

    // Resetting
    void resetCreateNewFileRule() { resetRules_.reset(RuleCategory::createNewFile); }
    void resetCopyFilesToRule() { resetRules_.reset(RuleCategory::copyFilesTo); }
    void resetCustomIconRule() { resetRules_.reset(RuleCategory::customIcon); }
    void resetOthersRule() { resetRules_.reset(RuleCategory::others); }

    // Switches
    void onOffcheckedStateChangedOfCreateNewFile(long row, bool on) {
        toggleRules_.setEnabled(RuleCategory::createNewFile, row, on);
    }
    void onOffEnableMainMenuStateChangedOfCreateNewFile(long row, bool on) {
        toggleRules_.setEnabledInMainMenu(row, on);
    }
    void onOffcheckedStateChangedOfCopyTo(long row, bool on) {
        toggleRules_.setEnabled(RuleCategory::copyFilesTo, row, on);
    }
    void onOffcheckedStateChangedOfCustomIcon(long row, bool on) {
        toggleRules_.setEnabled(RuleCategory::customIcon, row, on);
    }
    void onOffcheckedStateChangedOfOthers(long row, bool on) {
        toggleRules_.setEnabled(RuleCategory::others, row, on);
    }
    void enableAllOfCreateNewFilesClick() { toggleRules_.enableAll(RuleCategory::createNewFile); }
    void enableAllOfCustomIconClick() { toggleRules_.enableAll(RuleCategory::customIcon); }
    void enableAllOfOthersClick() { toggleRules_.enableAll(RuleCategory::others); }
    /// A mirrored key of `LocalPreferences` has a new value.
    void observeValue(std::string_view keyPath, const PlistValue& newValue);

    // Dragging, editing, choosing
    [[nodiscard]] std::uint32_t validateDrop(DropPlace place) const { return tarnwick::validateDrop(place); }
    /// Always true, also when nothing was moved.
    bool acceptDrop(
        std::optional<RuleCategory> target, std::optional<RuleCategory> source, long from, long to);
    [[nodiscard]] bool canMoveSelectedRule(RuleCategory category, MoveDirection direction) const {
        return reorderRules_.canMoveSelection(category, direction);
    }
    void moveSelectedRule(RuleCategory category, MoveDirection direction);
    /// Always true: editing ends, whatever the text.
    bool controlTextShouldEndEditing(std::string_view identifier, long row, std::string_view text);
    void selectPath(long row) { choosePath_.selectPath(row); }
    /// Ends an edit in progress into its own row, where one runs. All that changes a list or shows another
    /// page does so itself; the window does so before it closes and before the application quits.
    void endEditing() { pages_.endEditing(); }

    // The Finder and its extension
    [[nodiscard]] bool isExtensionEnabled() const { return finderExtension_.isExtensionEnabled(); }
    void promptToEnableExtension() { finderExtension_.promptToEnableExtension(); }
    void openSystemPreferences() { finderExtension_.openSystemPreferences(); }
    void restartFinderClick();
    void initializeClick();
    void helpServicesOfSystemPreferences();
    /// Deliberately nothing: a harmless action target.
    void openServiceOfSystemPreferences() {}
    /// Deliberately nothing: application activations are of no consequence here.
    void appChanged() {}
    /// Opens one of the fixed addresses of the page of further apps.
    void openLink(std::string_view address);

    // The user script
    [[nodiscard]] bool checkScriptInstalled() { return scriptHelper_.checkScriptInstalled(); }
    void doInstallScript() { scriptHelper_.doInstallScript(); }
    void restartFinder() { scriptHelper_.restartFinder(); }
    void openServicesOfSystemPreferences() { scriptHelper_.openServicesOfSystemPreferences(); }
    void initialize() { scriptHelper_.initialize(); }

    // Tools beside the settings
    [[nodiscard]] std::optional<std::string> runCommand(const std::string& command);
    [[nodiscard]] bool appWithBundleIdentifierInstalled(std::string_view bundleIdentifier) const;
    void getSystemShortcuts();

private:
    void showPage(Page page);
    void updateRemoveButton(RuleCategory category);
    void setVersionLabel();
    void setUpDragging();
    void setUpButtons();

    Platform platform_;
    Outlets outlets_;
    LocalPreferences local_;
    RuleLists lists_;
    RulePublisher publisher_;
    FactoryLists factory_;
    PreferenceLoading loading_;
    RulePages pages_;
    RowViews rowViews_;
    RepeatedNames repeatedNames_;
    AddRules addRules_;
    RemoveRule removeRule_;
    ResetRules resetRules_;
    ToggleRules toggleRules_;
    ReorderRules reorderRules_;
    EditText editText_;
    ChoosePath choosePath_;
    FinderExtension finderExtension_;
    ScriptHelper scriptHelper_;
};

} // namespace tarnwick
