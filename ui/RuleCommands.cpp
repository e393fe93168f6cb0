#include "ui/RuleCommands.h"
#include "ui/RowRemarks.h"

#include "editing/RuleEditing.h"
#include "platform/Workspace.h"
#include "prefs/Preferences.h"
#include "ui/CellView.h"
#include "ui/EnabledRules.h"
#include "ui/SettingsController.h"
#include "ui/SettingsWindow.h"

#include <algorithm>

namespace tarnwick {
namespace {

/// Why a command is not possible.
namespace obstacle {
constexpr std::string_view noList = "This page has no list.";
constexpr std::string_view noRow = "Select a row first.";
constexpr std::string_view noFolder = "It has no folder yet.";
constexpr std::string_view noFile = "Its template file cannot be found.";
constexpr std::string_view first = "It is the first row already.";
constexpr std::string_view last = "It is the last row already.";
constexpr std::string_view heldBack = "It cannot be moved there.";
constexpr std::string_view notRemovable = "This item cannot be removed.";
} // namespace obstacle

/// What the command does that goes either way.
namespace title {
constexpr std::string_view turnOn = "Turn On";
constexpr std::string_view turnOff = "Turn Off";
} // namespace title

template <ColumnRole role>
bool hasColumn(RuleCategory category) {
    return columnOf(category, role) != nullptr;
}

bool isAny(RuleCategory) {
    return true;
}

bool choosesFolders(RuleCategory category) {
    return factsOf(category).source == RuleSource::folders;
}

bool hasTemplates(RuleCategory category) {
    return factsOf(category).hasTemplateFiles;
}

bool hasFilesOrFolders(RuleCategory category) {
    return hasTemplates(category) || choosesFolders(category);
}

bool hasFactoryList(RuleCategory category) {
    return factsOf(category).hasFactoryList;
}

bool hasEnableAll(RuleCategory category) {
    return !factsOf(category).enableAllKey.empty();
}

template <ColumnRole role>
CellView cellOf(const RuleRows& rows, RuleCategory category, long row) {
    return rows.cell(category, columnOf(category, role)->identifier, row);
}

} // namespace

struct RuleCommands::Facts {
    Command command;
    bool isAboutARow;
    bool (*isHadBy)(RuleCategory);
    CommandState (RuleCommands::*state)(RuleCategory, long row) const;
    void (RuleCommands::*act)(RuleCategory, long row);
};

struct RuleCommands::Table {
    using Self = RuleCommands;
    using Role = ColumnRole;
    static constexpr bool row = true;
    static constexpr bool page = false;
    static constexpr Facts lines[]{
        {Command::rename, row, hasColumn<Role::name>, &Self::textState<Role::name>, &Self::edit<Role::name>},
        {Command::editNote, row, hasColumn<Role::note>, &Self::textState<Role::note>,
            &Self::edit<Role::note>},
        {Command::turnOnOrOff, row, hasColumn<Role::enableSwitch>, &Self::turnState,
            &Self::turn<Role::enableSwitch>},
        {Command::showInMainMenu, row, hasColumn<Role::mainMenuSwitch>,
            &Self::switchState<Role::mainMenuSwitch>, &Self::turn<Role::mainMenuSwitch>},
        {Command::chooseFolder, row, choosesFolders, &Self::alwaysPossible, &Self::chooseFolder},
        {Command::showInFinder, row, hasFilesOrFolders, &Self::fileState, &Self::showInFinder},
        {Command::openTemplate, row, hasTemplates, &Self::fileState, &Self::openTemplate},
        {Command::moveUp, row, isAny, &Self::moveState<MoveDirection::up>, &Self::move<MoveDirection::up>},
        {Command::moveDown, row, isAny, &Self::moveState<MoveDirection::down>,
            &Self::move<MoveDirection::down>},
        {Command::removeRule, row, isAny, &Self::removeState, &Self::remove},
        {Command::addRule, page, isAny, &Self::alwaysPossible, &Self::add},
        {Command::resetList, page, hasFactoryList, &Self::alwaysPossible, &Self::reset},
        {Command::enableAll, page, hasEnableAll, &Self::enableAllState, &Self::enableAll},
    };
};

const RuleCommands::Facts* RuleCommands::factsOf(Command command) {
    const auto* const found = std::find_if(std::begin(Table::lines), std::end(Table::lines),
        [command](const Facts& facts) { return facts.command == command; });
    return found == std::end(Table::lines) ? nullptr : found;
}

bool RuleCommands::has(std::optional<RuleCategory> shown, Command command) {
    const auto* facts = factsOf(command);
    if (!facts) {
        return false;
    }
    return shown ? facts->isHadBy(*shown)
                 : std::all_of(allRuleCategories.begin(), allRuleCategories.end(), facts->isHadBy);
}

bool RuleCommands::isAboutARow(Command command) {
    const auto* facts = factsOf(command);
    return facts && facts->isAboutARow;
}

CommandState RuleCommands::state(std::optional<RuleCategory> shown, Command command) const {
    if (!shown || !has(shown, command)) {
        return {.obstacle = obstacle::noList};
    }
    const auto* facts = factsOf(command);
    const auto row = window_.selectedRow(*shown);
    if (facts->isAboutARow && !list(*shown).holds(row)) {
        return {.obstacle = obstacle::noRow};
    }
    return (this->*facts->state)(*shown, row);
}

void RuleCommands::perform(std::optional<RuleCategory> shown, Command command) {
    if (state(shown, command).isPossible()) {
        (this->*factsOf(command)->act)(*shown, window_.selectedRow(*shown));
    }
}

const RuleList& RuleCommands::list(RuleCategory category) const {
    return preferences_.lists[category];
}

std::optional<std::string> RuleCommands::fileOf(RuleCategory category, long row) const {
    const auto& records = list(category);
    if (!records.holds(row)) {
        return std::nullopt;
    }
    const auto& record = records[static_cast<std::size_t>(row)];
    if (hasTemplates(category)) {
        return preferences_.templateFiles.file(record);
    }
    const auto path = record.text(field::realPath);
    return path.empty() || path == undefinedPath ? std::nullopt : std::optional(std::string(path));
}

template <ColumnRole role>
CommandState RuleCommands::textState(RuleCategory category, long row) const {
    const auto cell = cellOf<role>(controller_.rows(), category, row);
    const auto* field = std::get_if<TextFieldCell>(&cell.control);
    return {.obstacle = field && field->editable ? "" : whyFixed};
}

template <ColumnRole role>
CommandState RuleCommands::switchState(RuleCategory category, long row) const {
    const auto cell = cellOf<role>(controller_.rows(), category, row);
    const auto* box = std::get_if<CheckBoxCell>(&cell.control);
    return {.obstacle = box && box->enabled ? "" : whyFixed, .isOn = box && box->on};
}

/// It says in words which way it goes, and bears no mark.
CommandState RuleCommands::turnState(RuleCategory category, long row) const {
    auto state = switchState<ColumnRole::enableSwitch>(category, row);
    state.title = state.isOn ? title::turnOff : title::turnOn;
    if (state.isPossible() && !state.isOn && !editing_.toggling.canTurnOn(category, row)) {
        state.obstacle = obstacle::noFolder;
    }
    state.isOn = false;
    return state;
}

CommandState RuleCommands::fileState(RuleCategory category, long row) const {
    if (fileOf(category, row)) {
        return {};
    }
    return {.obstacle = hasTemplates(category) ? obstacle::noFile : obstacle::noFolder};
}

template <MoveDirection direction>
CommandState RuleCommands::moveState(RuleCategory category, long row) const {
    if (editing_.reordering.canMoveSelection(category, direction)) {
        return {};
    }
    if (list(category).isFixed(static_cast<std::size_t>(row))) {
        return {.obstacle = whyFixed};
    }
    const bool isUp = direction == MoveDirection::up;
    if (row == (isUp ? 0 : static_cast<long>(list(category).size()) - 1)) {
        return {.obstacle = isUp ? obstacle::first : obstacle::last};
    }
    return {.obstacle = obstacle::heldBack};
}

CommandState RuleCommands::removeState(RuleCategory category, long row) const {
    if (window_.removeButtonIsEnabled(category)) {
        return {};
    }
    const bool isProtected = list(category).isProtected(static_cast<std::size_t>(row));
    return {.obstacle = isProtected ? obstacle::notRemovable : obstacle::noRow};
}

CommandState RuleCommands::enableAllState(RuleCategory category, long /*row*/) const {
    const auto stored = preferences_.local.flag(tarnwick::factsOf(category).enableAllKey);
    const auto shown = enabledRulesOf(list(category)).state(stored);
    return {.isOn = shown == EnableAllState::on, .isMixed = shown == EnableAllState::mixed};
}

CommandState RuleCommands::alwaysPossible(RuleCategory /*category*/, long /*row*/) const {
    return {};
}

template <ColumnRole role>
void RuleCommands::edit(RuleCategory category, long /*row*/) {
    controller_.endEditing();
    window_.editSelectedRow(category, columnOf(category, role)->identifier);
}

template <ColumnRole role>
void RuleCommands::turn(RuleCategory category, long row) {
    const auto isOn = switchState<role>(category, row).isOn;
    controller_.set(category, row, columnOf(category, role)->field, !isOn);
}

void RuleCommands::chooseFolder(RuleCategory category, long row) {
    controller_.selectPath(category, row);
}

/// The end of an edit may give the file another name.
void RuleCommands::showInFinder(RuleCategory category, long row) {
    controller_.endEditing();
    if (const auto path = fileOf(category, row)) {
        workspace_.showInFileViewer(*path);
    }
}

void RuleCommands::openTemplate(RuleCategory category, long row) {
    controller_.endEditing();
    if (const auto path = fileOf(category, row)) {
        workspace_.openFile(*path);
    }
}

template <MoveDirection direction>
void RuleCommands::move(RuleCategory category, long /*row*/) {
    controller_.moveSelectedRule(category, direction);
}

void RuleCommands::remove(RuleCategory category, long /*row*/) {
    controller_.remove(category);
}

void RuleCommands::add(RuleCategory category, long /*row*/) {
    controller_.add(category);
}

void RuleCommands::reset(RuleCategory category, long /*row*/) {
    controller_.reset(category);
}

void RuleCommands::enableAll(RuleCategory category, long /*row*/) {
    controller_.turnAllOnOrOff(category);
}

} // namespace tarnwick
