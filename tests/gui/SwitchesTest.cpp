#include "tests/gui/Driver.h"
#include "tests/gui/Foreign.h"
#include "tests/gui/Input.h"
#include "tests/gui/Shown.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace tarnwick::gui {
namespace {

TEST(Switches, ARowsCheckBoxStoresAnIntegerAndTheSuiteFollowsAtOnce) {
    clickCheckBox(RuleCategory::createNewFile, 2, "Enable");
    EXPECT_FALSE(cellIsOn(RuleCategory::createNewFile, 2, "Enable"));
    EXPECT_EQ(local("d['arrOfCreateNewFile'][2]['enable']"), "0");
    EXPECT_EQ(local("d['arrOfCreateNewFile'][0]['enable']"), "'1'");
    EXPECT_EQ(sharedNames("arrOfCreateNewFile", 3), "['TXT', 'RTF', 'Word']");
    EXPECT_EQ(selectedRow(RuleCategory::createNewFile), -1);
}

TEST(Switches, TheMainMenuCheckBoxHasAFieldOfItsOwn) {
    clickCheckBox(RuleCategory::createNewFile, 1, "EnableMainMenu");
    EXPECT_TRUE(cellIsOn(RuleCategory::createNewFile, 1, "EnableMainMenu"));
    EXPECT_EQ(
        shared("[r['enableMainMenu'] for r in d['arrOfCreateNewFile'] if 'enableMainMenu' in r]"), "[1]");
}

TEST(Switches, EnableAllTurnsEveryTemplateOnAndTheSwitchFollowsASingleRow) {
    clickButton("Enable all templates");
    EXPECT_EQ(shared("len(d['arrOfCreateNewFile'])"), "15");
    EXPECT_EQ(shared("set(type(r['enable']).__name__ for r in d['arrOfCreateNewFile'])"), "{'bool'}");
    EXPECT_TRUE(cellIsOn(RuleCategory::createNewFile, 14, "Enable"));
    EXPECT_TRUE(buttonIsOn("Enable all templates"));
    clickCheckBox(RuleCategory::createNewFile, 0, "Enable");
    EXPECT_FALSE(buttonIsOn("Enable all templates"));
    EXPECT_TRUE(buttonIsMixed("Enable all templates"));
    clickCheckBox(RuleCategory::createNewFile, 0, "Enable");
    EXPECT_TRUE(buttonIsOn("Enable all templates"));
}

TEST(Switches, EnableAllIsMixedForTheEyeAloneAndSaysHowManyAreOn) {
    EXPECT_TRUE(showsText("15 of 15 on"));
    clickCheckBox(RuleCategory::createNewFile, 4, "Enable");
    EXPECT_TRUE(buttonIsMixed("Enable all templates"));
    EXPECT_TRUE(showsText("14 of 15 on"));
    EXPECT_TRUE(waitUntil([] { return local("d['enableAllOfCreateNewFiles']") == "False"; }));
    clickButton("Enable all templates");
    EXPECT_TRUE(buttonIsOn("Enable all templates"));
    EXPECT_TRUE(waitUntil([] { return local("d['enableAllOfCreateNewFiles']") == "True"; }));
    clickButton("Enable all templates");
    EXPECT_FALSE(buttonIsOn("Enable all templates"));
    EXPECT_FALSE(buttonIsMixed("Enable all templates"));
    EXPECT_TRUE(showsText("0 of 15 on"));
    EXPECT_TRUE(waitUntil([] { return local("d['enableAllOfCreateNewFiles']") == "False"; }));
    clickButton("Enable all templates");
    EXPECT_TRUE(buttonIsOn("Enable all templates"));
}

TEST(Switches, EnableAllFollowsAnotherProgram) {
    ASSERT_TRUE(buttonIsOn("Enable all templates"));
    // What was clicked before is written, and so does not come after what the other program writes.
    ASSERT_TRUE(waitUntil([] { return local("d['enableAllOfCreateNewFiles']") == "True"; }));
    ASSERT_EQ(std::system("defaults write org.halvane.Tarnwick enableAllOfCreateNewFiles -bool NO"), 0);
    becomeActive();
    EXPECT_TRUE(waitUntil([] { return !buttonIsOn("Enable all templates"); }));
    clickButton("Enable all templates");
    EXPECT_TRUE(buttonIsOn("Enable all templates"));
    EXPECT_TRUE(waitUntil([] { return local("d['enableAllOfCreateNewFiles']") == "True"; }));
}

TEST(Switches, AnOptionSwitchIsMirroredIntoTheSuiteAsABoolean) {
    clickButton("Open a new file right away");
    EXPECT_EQ(shared("d['enableAutoOpenAfterCreateNewFile']"), "False");
    clickButton("Open a new file right away");
    EXPECT_EQ(shared("d['enableAutoOpenAfterCreateNewFile']"), "True");
    clickButton("Name new files yourself");
    EXPECT_EQ(shared("d['disableAutoNameOfCreateNewFile']"), "True");
}

TEST(Switches, NoneIsWiderThanItsTitle) {
    for (const auto* title :
        {"Show icons in the menu", "Open a new file right away", "Enable all templates"}) {
        EXPECT_GE(roomRightOfTitle(title), 0);
        EXPECT_LT(roomRightOfTitle(title), 8);
    }
}

TEST(Switches, OneThatAnotherProgramChangesReachesTheWindowAndTheSuiteWithTheNextWrite) {
    ASSERT_EQ(std::system("defaults write org.halvane.Tarnwick soundTipsOfNewFile NO"), 0);
    clickCheckBox(RuleCategory::createNewFile, 3, "Enable");
    EXPECT_TRUE(waitUntil([] { return shared("d['soundTipsOfNewFile']") == "False"; }));
    EXPECT_FALSE(buttonIsOn("Play a sound after creating a file"));
    clickCheckBox(RuleCategory::createNewFile, 3, "Enable");
}

TEST(Switches, OneThatAnotherProgramChangesReachesTheSuiteWhenTheApplicationBecomesActive) {
    ASSERT_EQ(std::system("defaults write org.halvane.Tarnwick soundTipsOfNewFile YES"), 0);
    becomeActive();
    EXPECT_TRUE(waitUntil([] { return shared("d['soundTipsOfNewFile']") == "True"; }));
    EXPECT_TRUE(buttonIsOn("Play a sound after creating a file"));
}

TEST(Switches, ATerminalSwitchStaysWithTheApplication) {
    clickPageButton(Page::others);
    clickButton("Open Terminal in a new window");
    EXPECT_FALSE(buttonIsOn("Open Terminal in a new window"));
    EXPECT_EQ(shared("d['newWindowOfOpenInTerminal']"), "True");
}

TEST(Switches, EnableAllOffLeavesTheFixedActionsOn) {
    clickPageButton(Page::others);
    clickButton("Enable all items");
    EXPECT_EQ(shared("[(r['Action'], r['enable']) for r in d['arrOfOthers']]"),
        "[('Translate by Baidu', 1), ('Translate by Google', 1), ('Change to QR Code', 1)]");
    EXPECT_TRUE(buttonIsMixed("Enable all items"));
    EXPECT_TRUE(showsText("3 of " + std::to_string(rowCount(RuleCategory::others)) + " on"));
    EXPECT_FALSE(cellIsOn(RuleCategory::others, 0, "OthersEnable"));
    EXPECT_TRUE(cellIsOn(RuleCategory::others, 16, "OthersEnable"));
    EXPECT_FALSE(cellIsEnabled(RuleCategory::others, 16, "OthersEnable"));
}

TEST(Switches, AFixedActionsCheckBoxCannotBeClicked) {
    clickPageButton(Page::others);
    clickCheckBox(RuleCategory::others, 16, "OthersEnable");
    EXPECT_TRUE(cellIsOn(RuleCategory::others, 16, "OthersEnable"));
    EXPECT_EQ(
        shared("[r['enable'] for r in d['arrOfOthers'] if r['Action'] == 'Translate by Google']"), "[1]");
}

} // namespace
} // namespace tarnwick::gui
