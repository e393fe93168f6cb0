#include "ui/SettingsController.h"

#include "integration/Links.h"
#include "platform/ApplicationBundle.h"
#include "platform/Ports.h"
#include "platform/PreferenceStore.h"
#include "platform/RunLoop.h"
#include "platform/SystemLog.h"
#include "platform/Workspace.h"
#include "prefs/PreferenceKeys.h"
#include "prefs/SharedPreferences.h"
#include "ui/Colour.h"
#include "ui/SettingsWindow.h"
#include "ui/StartDelay.h"
#include "ui/WindowLayout.h"

namespace tarnwick {
namespace {

/// The system's gray, half white, seen through at 0.4.
constexpr Colour currentPageColour{0.5, 0.5, 0.5, 0.4};
constexpr Colour red{1, 0, 0, 1};

void markPageButton(SettingsWindow& window, Page page) {
    window.setPageButtonBackground(page, currentPageColour);
    for (const auto other : allPages) {
        if (other != page) {
            window.setPageButtonBackground(other, clearColour);
        }
    }
}

} // namespace

SettingsController::SettingsController(const Ports& ports, SettingsWindow& window)
    : stores_(ports.preferences), bundle_(ports.bundle), workspace_(ports.workspace), runLoop_(ports.runLoop),
      log_(ports.log), window_(window), preferences_(ports),
      stepNames_(ports.folders, ports.bundle, ports.images),
      editing_(ports, preferences_, window, stepNames_),
      transfer_(ports, preferences_, editing_.editor, window, stepNames_), integration_(ports, preferences_),
      rows_(preferences_.lists, ports.folders, ports.bundle, ports.images),
      finding_(preferences_.lists, rows_, ports.bundle, editing_.editor, window),
      commands_(*this, preferences_, editing_, ports.workspace, window),
      warnings_(ports, preferences_.lists, integration_.finderExtension, editing_.editor, window),
      preview_(preferences_.lists, preferences_.local, rows_, ports.folders, ports.bundle, ports.images) {}

void SettingsController::awakeFromNib() {
    preferences_.loading.prepareStoresAndFolders();
    runLoop_.performAfterDelay(startDelaySeconds, [this] { start(); });
    window_.showVersion(bundle_.localized("Tarnwick Lite") + ": " + bundle_.shortVersion());
    preferences_.loading.loadLists();
    // A change that nobody sees would be taken back unawares.
    editing_.editor.whenTakenBack([this](RuleCategory category) { showPage(pageOf(category)); });
    window_.observeSwitches(mirroredKeys);
    for (const auto category : allRuleCategories) {
        window_.setUpDragging(category, dragOperationLink, dragOperationMove, rowDragType);
    }
    if (!workspace_.isRunning(siblingApplication)) {
        window_.hideRestartButton();
    }
    window_.setHelpTitleColour(red);
    // The window is seen before `start` shows the page.
    markPageButton(window_, Page::createNewFile);
}

void SettingsController::viewDidLoad() {
    log_.write("ddd");
}

void SettingsController::start() {
    showPage(Page::createNewFile);
    integration_.finderExtension.checkAtStart();
    for (const auto category : publishedAtStart) {
        preferences_.publisher.publish(category);
    }
    for (const auto category : removingDisabledAtStart) {
        window_.setRemoveButtonEnabled(category, false);
    }
    window_.observeApplicationChanges();
}

void SettingsController::showPage(Page page) {
    editing_.editor.endEditing();
    window_.showPage(page);
    markPageButton(window_, page);
    if (page == Page::copyFilesTo || page == Page::commonPath || page == Page::customIcon) {
        // The copy/move-to table in all three cases, on purpose.
        window_.reload(RuleCategory::copyFilesTo);
    }
    warnings_.pageShown(layoutOf(page).category);
}

void SettingsController::putFactoryListBack(RuleCategory category) {
    editing_.editor.endEditing();
    preferences_.factory.reset(category);
}

void SettingsController::showRule(RuleCategory category, long row) {
    showPage(pageOf(category));
    window_.selectRow(category, row);
    tableClicked(category);
}

void SettingsController::tableClicked(RuleCategory category) {
    window_.setRemoveButtonEnabled(
        category, preferences_.lists[category].canRemove(window_.selectedRow(category)));
}

void SettingsController::turnAllOnOrOff(RuleCategory category) {
    if (const auto key = factsOf(category).enableAllKey; !key.empty()) {
        preferences_.local.set(key, !preferences_.local.flag(key));
        enableAll(category);
    }
}

void SettingsController::switchChanged(std::string_view key, const PlistValue& newValue) {
    mirrorSwitch(stores_, key, newValue);
}

void SettingsController::acceptDrop(
    std::optional<RuleCategory> target, std::optional<RuleCategory> source, long from, long to) {
    editing_.reordering.acceptDrop(target, source, from, to);
}

void SettingsController::moveSelectedRule(RuleCategory category, MoveDirection direction) {
    editing_.reordering.moveSelection(category, direction);
    tableClicked(category);
}

void SettingsController::textEdited(std::string_view identifier, long row, std::string_view text) {
    editing_.textEditing.endEditing(identifier, row, text);
}

} // namespace tarnwick
