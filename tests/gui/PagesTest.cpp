#include "tests/gui/Driver.h"
#include "tests/gui/Foreign.h"
#include "tests/gui/Input.h"
#include "tests/gui/Shown.h"

#include <gtest/gtest.h>

namespace tarnwick::gui {
namespace {

bool isPublished() {
    return shared("len(d.get('arrOfOthers', []))") == "18";
}

TEST(Pages, TheWindowOpensOnTheFirstPageWithEveryTableFilled) {
    ASSERT_TRUE(waitUntil(isPublished));
    EXPECT_EQ(shownPage(), 0);
    EXPECT_EQ(rowCount(RuleCategory::createNewFile), 15);
    EXPECT_EQ(rowCount(RuleCategory::copyFilesTo), 0);
    EXPECT_EQ(rowCount(RuleCategory::commonPath), 0);
    EXPECT_EQ(rowCount(RuleCategory::customIcon), 20);
    EXPECT_EQ(rowCount(RuleCategory::others), 18);
}

TEST(Pages, EveryPageButtonShowsItsPage) {
    for (const auto page : {Page::copyFilesTo, Page::commonPath, Page::customIcon, Page::others,
             Page::moreApps, Page::createNewFile}) {
        clickPageButton(page);
        EXPECT_EQ(shownPage(), static_cast<int>(page));
    }
}

TEST(Pages, AnEmptyTableSaysHowToAddTheFirstRowUntilThereIsOne) {
    clickPageButton(Page::copyFilesTo);
    EXPECT_TRUE(showsText("No folders to copy or move to"));
    takePicture("empty-copy-and-move-to");
    clickButton("Reset List");
    EXPECT_GT(rowCount(RuleCategory::copyFilesTo), 0);
    EXPECT_FALSE(showsText("No folders to copy or move to"));
    clickPageButton(Page::commonPath);
    EXPECT_TRUE(showsText("No common folders"));
    clickPageButton(Page::customIcon);
    EXPECT_FALSE(showsText("No pictures"));
}

TEST(Pages, AListSaysSoWhenItsLastRuleIsRemoved) {
    clickPageButton(Page::customIcon);
    clickCell(RuleCategory::customIcon, 0, "Size");
    for (long rows = rowCount(RuleCategory::customIcon); rows > 0; --rows) {
        EXPECT_FALSE(showsText("No pictures"));
        press(Key::deleteKey);
    }
    EXPECT_TRUE(showsText("No pictures"));
    takePicture("empty-custom-icons");
    clickButton("Reset List");
    EXPECT_FALSE(showsText("No pictures"));
}

TEST(Pages, CommandWithADigitShowsThePage) {
    for (int page = 5; page >= 0; --page) {
        pressCommand(static_cast<char>('1' + page));
        EXPECT_EQ(shownPage(), page);
    }
}

} // namespace
} // namespace tarnwick::gui
