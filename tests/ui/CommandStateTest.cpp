#include "prefs/RuleList.h"
#include "tests/support/SettingsFixture.h"
#include "ui/RuleCommands.h"

namespace tarnwick::testing {
namespace {

constexpr auto fixedObstacle = "This item is always on and keeps its name and its place.";
constexpr long fixedRow = 16;
constexpr long protectedRow = 1;

class CommandStateTest : public SettingsFixture {
protected:
    void launchWithFolders(RuleCategory category, std::initializer_list<const char*> paths) {
        std::vector<RuleRecord> records;
        for (const auto* path : paths) {
            records.push_back(makeRecord({{"enable", 0}, {"realPath", path}}));
        }
        storeList(category, records);
        launch();
    }
    void select(RuleCategory category, long row) {
        window_.table(category).selected = row;
        controller_.tableClicked(category);
        platform_.log.clear();
    }
    [[nodiscard]] CommandState state(RuleCategory category, Command command) {
        return controller_.commands().state(category, command);
    }
    [[nodiscard]] std::string obstacle(RuleCategory category, Command command) {
        return std::string(state(category, command).obstacle);
    }
    void perform(RuleCategory category, Command command) {
        controller_.commands().perform(category, command);
    }
};

TEST_F(CommandStateTest, AFixedItemIsNeitherRenamedNorAnnotatedNorTurnedOffNorMovedNorRemoved) {
    launch();
    select(RuleCategory::others, fixedRow);
    for (const auto command :
        {Command::rename, Command::editNote, Command::turnOnOrOff, Command::moveUp, Command::moveDown}) {
        EXPECT_EQ(obstacle(RuleCategory::others, command), fixedObstacle);
        perform(RuleCategory::others, command);
    }
    EXPECT_EQ(obstacle(RuleCategory::others, Command::removeRule), "This item cannot be removed.");
    EXPECT_TRUE(platform_.log.lines().empty());
}

TEST_F(CommandStateTest, RemovingIsPossibleExactlyWhileItsButtonIsEnabled) {
    launch();
    constexpr auto category = RuleCategory::others;
    select(category, protectedRow);
    EXPECT_EQ(obstacle(category, Command::removeRule), "This item cannot be removed.");
    // What the button lets through is not looked at again.
    window_.setRemoveButtonEnabled(category, true);
    EXPECT_EQ(obstacle(category, Command::removeRule), "");
    select(category, 2);
    EXPECT_EQ(obstacle(category, Command::removeRule), "");
    window_.setRemoveButtonEnabled(category, false);
    EXPECT_EQ(obstacle(category, Command::removeRule), "Select a row first.");
}

TEST_F(CommandStateTest, TheTitleSaysWhichWayTheSwitchGoes) {
    launch();
    select(RuleCategory::createNewFile, 0);
    EXPECT_EQ(state(RuleCategory::createNewFile, Command::turnOnOrOff).title, "Turn Off");
    perform(RuleCategory::createNewFile, Command::turnOnOrOff);
    EXPECT_EQ(state(RuleCategory::createNewFile, Command::turnOnOrOff).title, "Turn On");
    EXPECT_FALSE(state(RuleCategory::createNewFile, Command::turnOnOrOff).isOn);
}

TEST_F(CommandStateTest, TheMainMenuSwitchIsMarkedWhileItIsOn) {
    launch();
    select(RuleCategory::createNewFile, 0);
    EXPECT_FALSE(state(RuleCategory::createNewFile, Command::showInMainMenu).isOn);
    perform(RuleCategory::createNewFile, Command::showInMainMenu);
    EXPECT_TRUE(state(RuleCategory::createNewFile, Command::showInMainMenu).isOn);
}

TEST_F(CommandStateTest, AllAreMarkedAsTheSwitchAboveTheTableIsAndTurnedAsByIt) {
    launch();
    constexpr auto category = RuleCategory::customIcon;
    EXPECT_TRUE(state(category, Command::enableAll).isOn);
    perform(category, Command::enableAll);
    EXPECT_EQ(local("enableAllOfCustomIcon"), PlistValue(false));
    EXPECT_TRUE(sharedList(category).empty());
    EXPECT_FALSE(state(category, Command::enableAll).isOn);
    EXPECT_FALSE(state(category, Command::enableAll).isMixed);
    controller_.set(category, 0, field::enable, true);
    EXPECT_TRUE(state(category, Command::enableAll).isMixed);
}

TEST_F(CommandStateTest, ATargetWithoutAFolderIsNotTurnedOnButOffAndNotShown) {
    storeList(RuleCategory::copyFilesTo, {makeRecord({{"enable", 0}, {"realPath", "Undefined"}}),
                                             makeRecord({{"enable", 1}, {"realPath", "Undefined"}}),
                                             makeRecord({{"enable", 0}, {"realPath", "/a/Zoo"}})});
    launch();
    constexpr auto category = RuleCategory::copyFilesTo;
    select(category, 0);
    EXPECT_EQ(obstacle(category, Command::turnOnOrOff), "It has no folder yet.");
    EXPECT_EQ(state(category, Command::turnOnOrOff).title, "Turn On");
    EXPECT_EQ(obstacle(category, Command::showInFinder), "It has no folder yet.");
    EXPECT_EQ(obstacle(category, Command::chooseFolder), "");
    select(category, 1);
    EXPECT_EQ(obstacle(category, Command::turnOnOrOff), "");
    EXPECT_EQ(state(category, Command::turnOnOrOff).title, "Turn Off");
    select(category, 2);
    EXPECT_EQ(obstacle(category, Command::turnOnOrOff), "");
    EXPECT_EQ(obstacle(category, Command::showInFinder), "");
}

TEST_F(CommandStateTest, ARowStaysAtTheEndsAndWhereTheIconsHoldItBack) {
    storeList(RuleCategory::customIcon, {RuleRecord(), RuleRecord(), RuleRecord()});
    launchWithFolders(RuleCategory::commonPath, {"/a", "/b"});
    select(RuleCategory::commonPath, 0);
    EXPECT_EQ(obstacle(RuleCategory::commonPath, Command::moveUp), "It is the first row already.");
    EXPECT_EQ(obstacle(RuleCategory::commonPath, Command::moveDown), "");
    select(RuleCategory::commonPath, 1);
    EXPECT_EQ(obstacle(RuleCategory::commonPath, Command::moveUp), "");
    EXPECT_EQ(obstacle(RuleCategory::commonPath, Command::moveDown), "It is the last row already.");
    select(RuleCategory::others, 2);
    EXPECT_EQ(obstacle(RuleCategory::others, Command::moveDown), "It cannot be moved there.");
}

TEST_F(CommandStateTest, ATemplateIsShownAndOpenedWhereItsFileIs) {
    launch();
    constexpr auto category = RuleCategory::createNewFile;
    select(category, 3);
    perform(category, Command::showInFinder);
    perform(category, Command::openTemplate);
    EXPECT_EQ(
        platform_.log.lines(), (std::vector<std::string>{"show /container/Templates/CreateNewFile/Word.docx",
                                   "open file /container/Templates/CreateNewFile/Word.docx"}));
}

TEST_F(CommandStateTest, ATemplateWhoseFileIsMissingIsNeitherShownNorOpened) {
    launch();
    constexpr auto category = RuleCategory::createNewFile;
    platform_.files.files.erase("/container/Templates/CreateNewFile/Word.docx");
    select(category, 3);
    for (const auto command : {Command::showInFinder, Command::openTemplate}) {
        EXPECT_EQ(obstacle(category, command), "Its template file cannot be found.");
        perform(category, command);
    }
    EXPECT_TRUE(platform_.log.lines().empty());
}

TEST_F(CommandStateTest, ATemplateWhoseNameLeadsElsewhereIsNotShown) {
    launch();
    controller_.textEdited("NewFileDisplayName", 0, "../letter");
    platform_.files.files["/container/Templates/CreateNewFile/../letter.txt"] = "private";
    select(RuleCategory::createNewFile, 0);
    EXPECT_EQ(
        obstacle(RuleCategory::createNewFile, Command::openTemplate), "Its template file cannot be found.");
}

TEST_F(CommandStateTest, ATemplateIsShownUnderTheNameThatAnOpenEditGivesIt) {
    launch();
    constexpr auto category = RuleCategory::createNewFile;
    select(category, 3);
    window_.openEdit = [this] { controller_.textEdited("NewFileDisplayName", 3, "Letter"); };
    perform(category, Command::showInFinder);
    EXPECT_EQ(platform_.log.lines().back(), "show /container/Templates/CreateNewFile/Letter.docx");
}

TEST_F(CommandStateTest, AFolderIsShownUnexamined) {
    launchWithFolders(RuleCategory::commonPath, {"/no/such/folder"});
    select(RuleCategory::commonPath, 0);
    perform(RuleCategory::commonPath, Command::showInFinder);
    EXPECT_EQ(platform_.log.lines(), std::vector<std::string>{"show /no/such/folder"});
}

} // namespace
} // namespace tarnwick::testing
