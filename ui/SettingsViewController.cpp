#include "ui/SettingsViewController.h"

#include "integration/InstalledApplications.h"
#include "integration/Links.h"
#include "integration/RestartRequest.h"
#include "integration/ShellCommand.h"
#include "integration/SystemShortcuts.h"
#include "platform/ApplicationBundle.h"
#include "platform/RunLoop.h"
#include "platform/RunningApplications.h"
#include "platform/SystemLog.h"
#include "platform/Workspace.h"
#include "ui/RowLabels.h"
#include "ui/WindowLayout.h"

namespace tarnwick {
namespace {

constexpr double startDelaySeconds = 0.01;

/// The system's gray, half white, seen through at 0.4.
constexpr Colour currentPageColour{0.5, 0.5, 0.5, 0.4};
constexpr Colour red{1, 0, 0, 1};

} // namespace

SettingsViewController::SettingsViewController(const Platform& platform)
    : platform_(platform), publisher_(platform.preferences, local_, lists_),
      factory_(platform, local_, lists_, publisher_),
      loading_(platform, local_, lists_, publisher_, factory_), pages_(lists_, local_, publisher_),
      rowViews_(platform, lists_), repeatedNames_(lists_), addRules_(platform, local_, pages_),
      removeRule_(platform, local_, pages_), resetRules_(factory_, pages_), toggleRules_(local_, pages_),
      reorderRules_(pages_), editText_(platform, local_, pages_), choosePath_(platform, pages_),
      finderExtension_(platform, local_), scriptHelper_(platform) {}

void SettingsViewController::connect(const Outlets& outlets) {
    outlets_ = outlets;
    pages_.connect(outlets.tables, outlets.removeButtons, outlets.rowEditing);
}

void SettingsViewController::awakeFromNib() {
    loading_.prepareStoresAndFolders();
    platform_.runLoop.performAfterDelay(startDelaySeconds, [this] { start(); });
    setVersionLabel();
    loading_.loadLists();
    loading_.observeMirroredKeys();
    setUpDragging();
    setUpButtons();
}

void SettingsViewController::viewDidLoad() {
    platform_.log.write("ddd");
}

void SettingsViewController::setVersionLabel() {
    if (outlets_.version) {
        outlets_.version->setText(
            platform_.bundle.localized("Tarnwick Lite") + ": " + platform_.bundle.shortVersion());
    }
}

void SettingsViewController::setUpDragging() {
    for (const auto category : allRuleCategories) {
        if (auto* table = outlets_.table(category)) {
            table->setDraggingSourceOperationMask(dragOperationLink, DragScope::outsideApplication);
            table->setDraggingSourceOperationMask(dragOperationMove, DragScope::insideApplication);
            table->registerForDraggedType(rowDragType);
        }
    }
}

void SettingsViewController::setUpButtons() {
    if (outlets_.restartFinderButton && !platform_.runningApplications.isRunning(siblingApplication)) {
        outlets_.restartFinderButton->setHidden(true);
    }
    if (outlets_.helpButton) {
        outlets_.helpButton->setTitleColour(red);
    }
}

void SettingsViewController::start() {
    createNewFilePressed();
    finderExtension_.checkAtStart();
    publisher_.setCopyFilesToSettings();
    publisher_.setCustomIconToSettings();
    publisher_.setOthersToSettings();
    publisher_.setCreateNewFileToSettings();
    // The remove button of the Others page is left as the layout has it.
    for (const auto category : {RuleCategory::createNewFile, RuleCategory::customIcon,
             RuleCategory::copyFilesTo, RuleCategory::commonPath}) {
        pages_.setRemoveButtonEnabled(category, false);
    }
    platform_.workspace.observeApplicationChanges();
}

void SettingsViewController::showPage(Page page) {
    pages_.endEditing();
    const auto current = static_cast<std::size_t>(page);
    if (outlets_.tabView) {
        outlets_.tabView->selectTab(static_cast<int>(current));
    }
    if (auto* button = outlets_.pageButtons[current]) {
        button->setBackground(currentPageColour);
    }
    for (std::size_t other = 0; other < pageCount; ++other) {
        if (auto* button = outlets_.pageButtons[other]; button && other != current) {
            button->setBackground(clearColour);
        }
    }
    if (page == Page::copyFilesTo || page == Page::commonPath || page == Page::customIcon) {
        // The copy/move-to table in all three cases, on purpose.
        pages_.reload(RuleCategory::copyFilesTo);
    }
}

long SettingsViewController::numberOfRows(RuleCategory table) const {
    return static_cast<long>(lists_[table].size());
}

CellView SettingsViewController::viewForTableColumn(
    RuleCategory table, std::string_view column, long row) const {
    if (!lists_[table].holds(row)) {
        return {};
    }
    const auto index = static_cast<std::size_t>(row);
    switch (table) {
    case RuleCategory::createNewFile:
        return rowViews_.tableViewForCreateNewFile(column, index);
    case RuleCategory::copyFilesTo:
        return rowViews_.tableViewForCopyTo(column, index);
    case RuleCategory::commonPath:
        return rowViews_.tableViewForCommonPath(column, index);
    case RuleCategory::customIcon:
        return rowViews_.tableViewForCustomIcon(column, index);
    case RuleCategory::others:
        break;
    }
    return rowViews_.tableViewForOthers(column, index);
}

std::string SettingsViewController::accessibilityLabel(
    RuleCategory table, std::string_view column, long row) const {
    const auto cell = viewForTableColumn(table, layoutOf(table).nameColumn, row);
    const auto* name = std::get_if<TextFieldCell>(&cell.control);
    const auto isRepeated = name && repeatedNames_.has(table, static_cast<std::size_t>(row));
    return rowControlLabel(
        platform_.bundle, column, name ? std::string_view(name->text) : "", row, isRepeated);
}

void SettingsViewController::updateRemoveButton(RuleCategory category) {
    const auto row = pages_.selectedRow(category);
    const auto& list = lists_[category];
    const auto removable = list.holds(row) && !(category == RuleCategory::others &&
                                                  list[static_cast<std::size_t>(row)].hasProtectedAction());
    pages_.setRemoveButtonEnabled(category, removable);
}

void SettingsViewController::observeValue(std::string_view keyPath, const PlistValue& newValue) {
    mirrorSwitch(platform_.preferences, keyPath, newValue);
}

bool SettingsViewController::acceptDrop(
    std::optional<RuleCategory> target, std::optional<RuleCategory> source, long from, long to) {
    reorderRules_.acceptDrop(target, source, from, to);
    return true;
}

std::vector<std::string> SettingsViewController::droppablePaths(
    RuleCategory category, const std::vector<DroppedItem>& items) const {
    if (category == RuleCategory::others) {
        return {};
    }
    return choosablePaths(addRules_.chooser(category), items);
}

bool SettingsViewController::addDroppedItems(RuleCategory category, const std::vector<DroppedItem>& items) {
    const auto paths = droppablePaths(category, items);
    addRules_.addPaths(category, paths);
    return !paths.empty();
}

void SettingsViewController::moveSelectedRule(RuleCategory category, MoveDirection direction) {
    reorderRules_.moveSelection(category, direction);
    updateRemoveButton(category);
}

bool SettingsViewController::controlTextShouldEndEditing(
    std::string_view identifier, long row, std::string_view text) {
    editText_.endEditing(identifier, row, text);
    return true;
}

void SettingsViewController::restartFinderClick() {
    requestFinderRestart(platform_.preferences, platform_.notifications);
}

void SettingsViewController::initializeClick() {
    openLink(link::helpRestartFinder);
}

void SettingsViewController::helpServicesOfSystemPreferences() {
    openLink(link::helpServices);
}

void SettingsViewController::openLink(std::string_view address) {
    platform_.workspace.openURL(address);
}

std::optional<std::string> SettingsViewController::runCommand(const std::string& command) {
    return tarnwick::runCommand(platform_.shell, command);
}

bool SettingsViewController::appWithBundleIdentifierInstalled(std::string_view bundleIdentifier) const {
    return tarnwick::appWithBundleIdentifierInstalled(platform_.launchServices, bundleIdentifier);
}

void SettingsViewController::getSystemShortcuts() {
    tarnwick::getSystemShortcuts(platform_);
}

} // namespace tarnwick
