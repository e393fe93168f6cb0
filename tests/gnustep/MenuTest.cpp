#include "Files.h"
#include "MenuProbe.h"

#include <gtest/gtest.h>

using namespace tarnwick::probe;
using Events = std::vector<std::string>;

namespace {

const std::u16string down = u"\uF701";
const std::u16string up = u"\uF700";
const std::u16string right = u"\uF703";
const std::u16string left = u"\uF702";

} // namespace

TEST(Menu, ShowsKeysAsTheyAreWrittenOnAKeyboard) {
    EXPECT_EQ(keyLabel({"z"}), "Alt+Z");
    EXPECT_EQ(keyLabel({.character = "z", .shift = true}), "Shift+Alt+Z");
    EXPECT_EQ(keyLabel({"Z"}), "Shift+Alt+Z");
    EXPECT_EQ(keyLabel({.character = "1", .option = true, .control = true}), "Ctrl+AltGr+Alt+1");
    EXPECT_EQ(keyLabel({"\r"}), "Alt+Return");
    EXPECT_EQ(labelOfArrowUp(), "Alt+Up");
    EXPECT_EQ(keyLabel({""}), "");
}

TEST(Menu, ItemsWithShiftAreChosenByIt) {
    EXPECT_TRUE(isChosenBy({.character = "z", .shift = true}, {.character = "Z", .shift = true}));
    EXPECT_TRUE(isChosenBy({"Z"}, {.character = "Z", .shift = true}));
    EXPECT_TRUE(isChosenBy({"z"}, {"z"}));
    EXPECT_FALSE(isChosenBy({"z"}, {.character = "Z", .shift = true}));
    EXPECT_FALSE(isChosenBy({.character = "z", .shift = true}, {"z"}));
    EXPECT_FALSE(
        isChosenBy({.character = "z", .shift = true}, {.character = "Z", .shift = true, .option = true}));
}

TEST(Menu, IsAskedForAKeyOnceItsDelegateHasPutItsItemsThere) {
    EXPECT_TRUE(isChosenWhenPutThere());
}

TEST(Menu, TellsItsDelegateAndActsWhenItIsClosed) {
    EXPECT_EQ(popUpAndType(down + u"\r"), (Events{"will open", "did close", "chosen Two", "answer yes"}));
}

TEST(Menu, IsLeftByEscapeWithoutAnAction) {
    EXPECT_EQ(popUpAndType(down + u"\u001B"), (Events{"will open", "did close", "answer no"}));
}

TEST(Menu, OfWindowsMarksTheMainOneBelowASeparator) {
    const auto menu = windowsMenuOfTwo();
    EXPECT_EQ(menu.open, (Events{"Own", "-", "First", "marked Second"}));
    EXPECT_EQ(menu.closed, Events{"Own"});
}

TEST(Menu, LetsTheKeyboardIntoSubmenusAndOut) {
    EXPECT_EQ(popUpAndType(up + right + down + u" "),
        (Events{"will open", "did close", "chosen Five", "answer yes"}));
    EXPECT_EQ(popUpAndType(up + right + left + up + u"\r"),
        (Events{"will open", "did close", "chosen Two", "answer yes"}));
}

TEST(Menu, LetsTheKeyboardIntoSubmenusAtTheirSideWhenReadFromRightToLeft) {
    turnReadingDirection();
    EXPECT_EQ(popUpAndType(up + left + down + right + up + u"\r"),
        (Events{"will open", "did close", "chosen Two", "answer yes"}));
    EXPECT_EQ(popUpAndType(up + left + down + u" "),
        (Events{"will open", "did close", "chosen Five", "answer yes"}));
}
