#include "tests/gui/Controls.h"
#include "tests/gui/Driver.h"
#include "tests/gui/Foreign.h"
#include "tests/gui/Input.h"
#include "tests/gui/Panels.h"
#include "tests/gui/Shown.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace tarnwick::gui {
namespace {

std::string folder(const std::string& name) {
    const auto path = sandboxFolder() + "/" + name;
    mkdir(path.c_str(), 0700);
    return path;
}

// The whole suite leaves the mouse alone.

TEST(Keyboard, ARowIsSelectedRenamedMovedSwitchedOffAndRemoved) {
    pressCommand('1');
    press(Key::down);
    press(Key::down);
    ASSERT_EQ(selectedRow(RuleCategory::createNewFile), 1);
    press(Key::returnKey);
    ASSERT_TRUE(isEditing());
    type("Letter");
    press(Key::returnKey);
    EXPECT_FALSE(isEditing());
    EXPECT_EQ(sharedNames("arrOfCreateNewFile", 3), "['TXT', 'Letter', 'XML']");
    EXPECT_EQ(selectedRow(RuleCategory::createNewFile), 1);
    pressOptionCommand(Key::up);
    EXPECT_EQ(sharedNames("arrOfCreateNewFile", 3), "['Letter', 'TXT', 'XML']");
    press(Key::space);
    EXPECT_EQ(sharedNames("arrOfCreateNewFile", 2), "['TXT', 'XML']");
    EXPECT_EQ(local("d['arrOfCreateNewFile'][0]['displayName']"), "'Letter'");
    press(Key::deleteKey);
    EXPECT_EQ(local("d['arrOfCreateNewFile'][0]['displayName']"), "'TXT'");
    EXPECT_EQ(rowCount(RuleCategory::createNewFile), 14);
}

/// Its cells are made anew after the edit, and the switch that the second key presses is among the old ones.
TEST(Keyboard, ARowIsSwitchedOffAsSoonAsItsNameIsTyped) {
    pressCommand('1');
    press(Key::down);
    ASSERT_EQ(selectedRow(RuleCategory::createNewFile), 1);
    press(Key::returnKey);
    ASSERT_TRUE(isEditing());
    typeFast("Fast\r ");
    EXPECT_EQ(local("d['arrOfCreateNewFile'][1]['displayName']"), "'Fast'");
    EXPECT_EQ(local("int(d['arrOfCreateNewFile'][1]['enable'])"), "0");
}

TEST(Keyboard, TheButtonsBelowTheListArePressed) {
    pressCommand('1');
    press(Key::up);
    ASSERT_TRUE(tabTo("Remove"));
    press(Key::space);
    EXPECT_EQ(rowCount(RuleCategory::createNewFile), 13);
    ASSERT_TRUE(tabTo("Reset List"));
    press(Key::space);
    EXPECT_EQ(rowCount(RuleCategory::createNewFile), 15);
    EXPECT_EQ(sharedNames("arrOfCreateNewFile", 2), "['TXT', 'RTF']");
}

TEST(Keyboard, ASwitchOfThePageIsTurned) {
    pressCommand('1');
    const std::string title = "Open a new file right away";
    const bool before = buttonIsOn(title);
    ASSERT_TRUE(tabTo(title));
    press(Key::space);
    EXPECT_NE(buttonIsOn(title), before);
    EXPECT_TRUE(waitUntil(
        [before] { return local("d['enableAutoOpenAfterCreateNewFile']") == (before ? "False" : "True"); }));
}

TEST(Keyboard, EveryRowOfTheListIsTurnedOffAtOnce) {
    pressCommand('4');
    ASSERT_TRUE(tabTo("Enable all icons"));
    press(Key::space);
    EXPECT_TRUE(waitUntil([] { return shared("len(d['arrOfCustomIcon'])") == "0"; }));
    press(Key::space);
    EXPECT_TRUE(waitUntil([] { return shared("len(d['arrOfCustomIcon'])") == "20"; }));
}

TEST(Keyboard, APageIsChosenByItsButton) {
    pressCommand('1');
    ASSERT_TRUE(tabTo("Custom Icons"));
    press(Key::space);
    EXPECT_EQ(shownPage(), static_cast<int>(Page::customIcon));
}

TEST(Keyboard, AFolderIsAddedAndThenAnotherChosen) {
    pressCommand('2');
    const auto one = folder("one");
    const auto two = folder("two");
    chooseInNextPanel(sandboxFolder() + "/one");
    pressCommand('n');
    ASSERT_TRUE(waitUntil([] { return rowCount(RuleCategory::copyFilesTo) == 1; }));
    ASSERT_TRUE(tabTo("Copy & Move To"));
    pressCommand('2');
    press(Key::down);
    ASSERT_EQ(selectedRow(RuleCategory::copyFilesTo), 0);
    chooseInNextPanel(sandboxFolder() + "/two");
    ASSERT_TRUE(tabTo("Choose Folder\u2026"));
    press(Key::space);
    ASSERT_TRUE(waitUntil([&] { return shared("d['arrOfCopyFilesTo'][0]['realPath']") == "'" + two + "'"; }));
}

} // namespace
} // namespace tarnwick::gui
