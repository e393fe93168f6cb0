#pragma once

#include "editing/ReorderRules.h"
#include "prefs/RuleCategory.h"
#include "ui/MenuLayout.h"
#include "ui/RuleColumns.h"

#include <optional>
#include <string>
#include <string_view>

namespace tarnwick {

class RuleList;
class SettingsController;
class SettingsWindow;
class Workspace;
struct Preferences;
struct RuleEditing;

/// Whether a command can be done just now, and how its menu item shows that. Texts are keys of the
/// localisation table.
struct CommandState {
    /// Why it cannot be done, in a sentence; empty when it can.
    std::string_view obstacle;
    /// The item's title where it says which way the command goes; empty: that of the menu's layout.
    std::string_view title;
    /// What the command turns on and off is on.
    bool isOn = false;
    /// Some of what it turns on and off is, some is not.
    bool isMixed = false;

    [[nodiscard]] bool isPossible() const { return obstacle.empty(); }
};

/// The commands on the list that is shown and on its selected row, as the menus offer them: which list has
/// which, when each is possible, and what it does, which is what the control does that stands for it in the
/// window. Without a list nothing is possible.
class RuleCommands {
public:
    RuleCommands(SettingsController& controller, const Preferences& preferences, const RuleEditing& editing,
        Workspace& workspace, SettingsWindow& window)
        : controller_(controller), preferences_(preferences), editing_(editing), workspace_(workspace),
          window_(window) {}

    /// Whether the command belongs into the list's menu; without a list, whether it does in every one.
    [[nodiscard]] static bool has(std::optional<RuleCategory> shown, Command command);
    /// Whether the command is about the selected row, not about the whole list.
    [[nodiscard]] static bool isAboutARow(Command command);

    [[nodiscard]] CommandState state(std::optional<RuleCategory> shown, Command command) const;
    /// What is not possible changes nothing. An edit in progress ends first.
    void perform(std::optional<RuleCategory> shown, Command command);

private:
    struct Facts;
    struct Table;
    [[nodiscard]] static const Facts* factsOf(Command command);

    [[nodiscard]] const RuleList& list(RuleCategory category) const;
    /// What the row stands for on the disk; nothing when that is not known, or a template file is missing.
    [[nodiscard]] std::optional<std::string> fileOf(RuleCategory category, long row) const;

    // These take a row that the list has where the command is about one.
    template <ColumnRole role>
    [[nodiscard]] CommandState textState(RuleCategory category, long row) const;
    template <ColumnRole role>
    [[nodiscard]] CommandState switchState(RuleCategory category, long row) const;
    [[nodiscard]] CommandState turnState(RuleCategory category, long row) const;
    [[nodiscard]] CommandState fileState(RuleCategory category, long row) const;
    template <MoveDirection direction>
    [[nodiscard]] CommandState moveState(RuleCategory category, long row) const;
    [[nodiscard]] CommandState removeState(RuleCategory category, long row) const;
    [[nodiscard]] CommandState enableAllState(RuleCategory category, long row) const;
    [[nodiscard]] CommandState alwaysPossible(RuleCategory category, long row) const;

    template <ColumnRole role>
    void edit(RuleCategory category, long row);
    template <ColumnRole role>
    void turn(RuleCategory category, long row);
    void chooseFolder(RuleCategory category, long row);
    void showInFinder(RuleCategory category, long row);
    void openTemplate(RuleCategory category, long row);
    template <MoveDirection direction>
    void move(RuleCategory category, long row);
    void remove(RuleCategory category, long row);
    void add(RuleCategory category, long row);
    void reset(RuleCategory category, long row);
    void enableAll(RuleCategory category, long row);

    SettingsController& controller_;
    const Preferences& preferences_;
    const RuleEditing& editing_;
    Workspace& workspace_;
    SettingsWindow& window_;
};

} // namespace tarnwick
