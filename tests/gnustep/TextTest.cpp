#include "Files.h"
#include "TextProbe.h"

#include <gtest/gtest.h>

using namespace tarnwick::probe;

TEST(Text, ShowsEmojiInColour) {
    EXPECT_FALSE(isColoured("Plain"));
    EXPECT_TRUE(isColoured("\U0001F5C2"));
    EXPECT_TRUE(isColoured("Letters \U0001F600 around"));
    EXPECT_FALSE(looksLike("\U0001F5C2", "\U0001F600"));
}

TEST(Text, GivesEachEmojiRoomOfItsOwn) {
    const auto one = widthOf("\U0001F5C2");
    EXPECT_GT(one, 10);
    EXPECT_NEAR(widthOf("\U0001F5C2\U0001F5C2\U0001F5C2"), 3 * one, 3);
    EXPECT_GT(widthOf("a\U0001F600b"), widthOf("ab") + 10);
}

TEST(Text, ShowsArabicLettersAndRareChineseOnes) {
    EXPECT_FALSE(looksLike("\u0645\u0631\u062D\u0628\u0627", "?????"));
    EXPECT_FALSE(looksLike("\u0645", "\u0631"));
    EXPECT_FALSE(looksLike("\U00020BB7", "?"));
    EXPECT_FALSE(looksLike("\U00020BB7", "??"));
    EXPECT_FALSE(looksLike("\U00020BB7", "\U00020B9F"));
}

TEST(Text, GoesOnAfterACharacterThatNoFontHas) {
    EXPECT_GT(widthOf("\U0010FFFDx"), widthOf("x"));
    EXPECT_GT(widthOf("x\uFFFDy"), widthOf("xy"));
}

TEST(Text, BeginsWhereItsAlignmentPutsItInAnEmptyField) {
    constexpr double width = 200;
    constexpr double margin = 10;
    EXPECT_LT(insertionPoint(TextSide::left, width), margin);
    EXPECT_NEAR(insertionPoint(TextSide::middle, width), width / 2, margin);
    EXPECT_GT(insertionPoint(TextSide::right, width), width - margin);
    EXPECT_LT(insertionPoint(TextSide::right, width), width);
}

TEST(Text, IsEditedInABoxThatLeavesWhatStandsBehindItInSight) {
    const auto [left, right] = boxOfEditedField();
    EXPECT_LT(left, 0);
    EXPECT_LT(right, 0);
}

TEST(Text, IsEditedInTheMirroredBoxWhenReadFromRightToLeft) {
    turnReadingDirection();
    const auto [left, right] = boxOfEditedField();
    EXPECT_GT(left, 0);
    EXPECT_GT(right, 0);
}
