#include "ui/RuleCommands.h"
#include "prefs/RuleList.h"
#include "tests/support/SettingsFixture.h"

namespace tarnwick::testing {
namespace {

using Category = std::optional<RuleCategory>;

/// Three folders for each of the two lists that have none at first, the first of which is yet to be chosen.
PlistValue folderList() {
    PlistArray records;
    for (const auto* path : {"Undefined", "/a/Zoo", "/a/Mill"}) {
        records.emplace_back(PlistDictionary{{"enable", 0}, {"realPath", path}, {"displayName", "A"}});
    }
    return records;
}

/// A program of its own, so that two can be compared.
struct Program {
    Program() {
        for (const auto* key : {"arrOfCopyFilesTo", "arrOfCommonPath"}) {
            platform.preferences.local.insert_or_assign(key, folderList());
        }
        connect(platform, window, controller);
        controller.awakeFromNib();
        platform.runLoop.runMain();
        for (const auto category : allRuleCategories) {
            window.reload(category);
        }
    }

    void select(RuleCategory category, long row) {
        window.table(category).selected = row;
        controller.tableClicked(category);
        platform.log.clear();
    }
    [[nodiscard]] CommandState state(RuleCategory category, Command command) {
        return controller.commands().state(category, command);
    }
    void perform(RuleCategory category, Command command) { controller.commands().perform(category, command); }

    InMemoryPlatform platform;
    InMemoryWindow window{platform.log, platform.preferences};
    SettingsController controller{platform.ports(), window};
};

std::vector<Command> commandsOf(Category shown) {
    std::vector<Command> found;
    for (const auto& item : ruleMenu()) {
        if (RuleCommands::has(shown, item.command)) {
            found.push_back(item.command);
        }
    }
    return found;
}

TEST(RuleCommands, EachListHasThoseOfItsControls) {
    using enum Command;
    using Commands = std::vector<Command>;
    EXPECT_EQ(commandsOf(RuleCategory::createNewFile),
        (Commands{rename, turnOnOrOff, showInMainMenu, showInFinder, openTemplate, moveUp, moveDown,
            removeRule, addRule, resetList, enableAll}));
    EXPECT_EQ(
        commandsOf(RuleCategory::copyFilesTo), (Commands{rename, turnOnOrOff, chooseFolder, showInFinder,
                                                   moveUp, moveDown, removeRule, addRule, resetList}));
    EXPECT_EQ(commandsOf(RuleCategory::commonPath),
        (Commands{rename, chooseFolder, showInFinder, moveUp, moveDown, removeRule, addRule}));
    EXPECT_EQ(commandsOf(RuleCategory::customIcon),
        (Commands{rename, turnOnOrOff, moveUp, moveDown, removeRule, addRule, resetList, enableAll}));
    EXPECT_EQ(commandsOf(RuleCategory::others), (Commands{rename, editNote, turnOnOrOff, moveUp, moveDown,
                                                    removeRule, addRule, resetList, enableAll}));
    EXPECT_EQ(commandsOf(std::nullopt), (Commands{rename, moveUp, moveDown, removeRule, addRule}));
}

/// A command, and what its control has the controller do.
struct Line {
    const char* name;
    Command command;
    void (*control)(Program& program, RuleCategory category, long row);
};

bool shows(Program& program, RuleCategory category, long row, ColumnRole role) {
    const auto cell = program.controller.rows().cell(category, columnOf(category, role)->identifier, row);
    const auto* box = std::get_if<CheckBoxCell>(&cell.control);
    EXPECT_NE(box, nullptr);
    return box && box->on;
}

constexpr Line lines[]{
    {"rename", Command::rename,
        [](Program& program, RuleCategory category, long) {
            program.window.editSelectedRow(category, columnOf(category, ColumnRole::name)->identifier);
        }},
    {"editNote", Command::editNote,
        [](Program& program, RuleCategory category, long) {
            program.window.editSelectedRow(category, "OthersNote");
        }},
    {"turnOnOrOff", Command::turnOnOrOff,
        [](Program& program, RuleCategory category, long row) {
            program.controller.set(
                category, row, "enable", !shows(program, category, row, ColumnRole::enableSwitch));
        }},
    {"showInMainMenu", Command::showInMainMenu,
        [](Program& program, RuleCategory category, long row) {
            program.controller.set(
                category, row, "enableMainMenu", !shows(program, category, row, ColumnRole::mainMenuSwitch));
        }},
    {"chooseFolder", Command::chooseFolder,
        [](Program& program, RuleCategory category, long row) {
            program.controller.selectPath(category, row);
            program.platform.panels.confirm({"/b/Attic"});
        }},
    {"moveUp", Command::moveUp,
        [](Program& program, RuleCategory category, long) {
            program.controller.moveSelectedRule(category, MoveDirection::up);
        }},
    {"moveDown", Command::moveDown,
        [](Program& program, RuleCategory category, long) {
            program.controller.moveSelectedRule(category, MoveDirection::down);
        }},
    {"removeRule", Command::removeRule,
        [](Program& program, RuleCategory category, long) { program.controller.remove(category); }},
    {"addRule", Command::addRule,
        [](Program& program, RuleCategory category, long) {
            program.controller.add(category);
            program.platform.panels.confirm({"/home/Letter.txt"});
        }},
    {"resetList", Command::resetList,
        [](Program& program, RuleCategory category, long) { program.controller.reset(category); }},
    {"enableAll", Command::enableAll,
        [](Program& program, RuleCategory category, long) {
            const auto key = std::string(factsOf(category).enableAllKey);
            const auto on = program.platform.preferences.local.at(key) == PlistValue(true);
            program.platform.log.add("local set " + key);
            program.platform.preferences.local.insert_or_assign(key, !on);
            program.controller.enableAll(category);
        }},
};

class EveryRuleCommand : public ::testing::TestWithParam<Line> {};

TEST_P(EveryRuleCommand, DoesWhatItsControlDoesInEveryRow) {
    int performed = 0;
    for (const auto category : allRuleCategories) {
        const auto rows = Program().controller.rows().count(category);
        for (long row = 0; row < rows && RuleCommands::has(category, GetParam().command); ++row) {
            Program one;
            Program other;
            one.select(category, row);
            other.select(category, row);
            if (!one.state(category, GetParam().command).isPossible()) {
                continue;
            }
            one.perform(category, GetParam().command);
            if (one.platform.panels.isOpen()) {
                one.platform.panels.confirm(
                    {GetParam().command == Command::addRule ? "/home/Letter.txt" : "/b/Attic"});
            }
            GetParam().control(other, category, row);
            EXPECT_FALSE(one.platform.log.lines().empty());
            EXPECT_EQ(one.platform.log.lines(), other.platform.log.lines());
            EXPECT_EQ(one.platform.preferences.local, other.platform.preferences.local);
            EXPECT_EQ(one.platform.preferences.shared, other.platform.preferences.shared);
            ++performed;
        }
    }
    EXPECT_GT(performed, 0);
}

TEST_P(EveryRuleCommand, EndsAnEditInProgressFirst) {
    Program program;
    for (const auto category : allRuleCategories) {
        if (RuleCommands::has(category, GetParam().command)) {
            program.select(category, 1);
            program.window.openEdit = [] {};
            if (!program.state(category, GetParam().command).isPossible()) {
                continue;
            }
            program.perform(category, GetParam().command);
            EXPECT_FALSE(program.window.openEdit);
            // The enable-all switch stores its state ahead.
            const auto& log = program.platform.log.lines();
            EXPECT_EQ(log[GetParam().command == Command::enableAll ? 1 : 0], "end edit");
        }
    }
}

TEST_P(EveryRuleCommand, IsNotPossibleWithoutAListAndThenDoesNothing) {
    Program program;
    program.platform.log.clear();
    EXPECT_EQ(program.controller.commands().state(std::nullopt, GetParam().command).obstacle,
        "This page has no list.");
    program.controller.commands().perform(std::nullopt, GetParam().command);
    EXPECT_TRUE(program.platform.log.lines().empty());
}

TEST_P(EveryRuleCommand, IsNotPossibleWithoutTheRowThatItIsAbout) {
    Program program;
    for (const auto category : allRuleCategories) {
        if (RuleCommands::has(category, GetParam().command)) {
            program.select(category, -1);
            const auto state = program.state(category, GetParam().command);
            const auto isAboutARow = RuleCommands::isAboutARow(GetParam().command);
            EXPECT_EQ(state.obstacle, isAboutARow ? "Select a row first." : "");
            if (isAboutARow) {
                program.perform(category, GetParam().command);
                EXPECT_TRUE(program.platform.log.lines().empty());
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Line, EveryRuleCommand, ::testing::ValuesIn(lines),
    [](const auto& line) { return std::string(line.param.name); });

} // namespace
} // namespace tarnwick::testing
