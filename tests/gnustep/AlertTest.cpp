#include "AlertProbe.h"
#include "Files.h"

#include <gtest/gtest.h>

using namespace tarnwick::probe;

namespace {

std::string paragraphs(int count) {
    std::string text;
    for (int each = 0; each < count; ++each) {
        text += "A line of some length, which takes the room of two and says what is to be said of one thing "
                "or another.\n";
    }
    return text + "The end.";
}

} // namespace

TEST(Alert, ShowsAMessageAsItIs) {
    const auto layout = layoutOfAlert(paragraphs(3));
    EXPECT_TRUE(layout.fitsTheScreen);
    EXPECT_TRUE(layout.isWhole);
    EXPECT_FALSE(layout.scrolls);
    EXPECT_TRUE(layout.iconIsAtTheLeft);
    EXPECT_FALSE(layout.defaultButtonIsAtTheLeft);
}

TEST(Alert, ScrollsAMessageThatIsTooLongForTheScreen) {
    for (const int count : {30, 60, 1000}) {
        const auto layout = layoutOfAlert(paragraphs(count));
        EXPECT_TRUE(layout.fitsTheScreen) << count;
        EXPECT_TRUE(layout.isWhole) << count;
        EXPECT_TRUE(layout.scrolls) << count;
        EXPECT_TRUE(layout.showsItsBeginning) << count;
        EXPECT_TRUE(layout.iconIsAtTheLeft) << count;
    }
}

TEST(Alert, IsTurnedAroundWhenReadFromRightToLeft) {
    turnReadingDirection();
    for (const int count : {3, 60}) {
        const auto layout = layoutOfAlert(paragraphs(count));
        EXPECT_TRUE(layout.isWhole) << count;
        EXPECT_FALSE(layout.iconIsAtTheLeft) << count;
        EXPECT_TRUE(layout.defaultButtonIsAtTheLeft) << count;
    }
}
