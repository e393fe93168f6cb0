#include "tests/gui/Preview.h"
#include "tests/gui/Controls.h"
#include "tests/gui/Input.h"
#include "tests/gui/Menus.h"
#include "tests/gui/Shown.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tarnwick::gui {
namespace {

TEST(Preview, ARuleOfTheMenuItselfIsShownOnItsPage) {
    clickPageButton(Page::moreApps);
    // The line at the foot is passed over.
    pressPreviewKeysAndType({upKey, enterKey});
    EXPECT_EQ(shownPage(), static_cast<int>(Page::others));
    EXPECT_EQ(selectedRow(RuleCategory::others), rowCount(RuleCategory::others) - 1);
}

TEST(Preview, ARuleOfASectionIsShownOnItsPage) {
    clickPageButton(Page::moreApps);
    clickPreviewAndType({downKey, rightKey, downKey, enterKey});
    EXPECT_EQ(shownPage(), static_cast<int>(Page::createNewFile));
    EXPECT_EQ(selectedRow(RuleCategory::createNewFile), 1);
    EXPECT_TRUE(removeButtonIsEnabled(RuleCategory::createNewFile));
}

TEST(Preview, EverythingButTheRemarkAtTheFootShowsItsIcon) {
    auto items = openPreview();
    ASSERT_GT(items.size(), 10U);
    EXPECT_FALSE(items.back().showsPicture);
    items.pop_back();
    for (const auto& item : items) {
        EXPECT_TRUE(item.showsPicture) << item.title;
    }
}

TEST(Preview, APictureThatIsKeptLongerThanItsMenuAsksNobodyToDrawIt) {
    EXPECT_TRUE(keptPictureAsksNobody());
}

TEST(Preview, LeavingTheMenuChangesNothing) {
    clickPageButton(Page::customIcon);
    clickPreviewAndType({downKey, escapeKey});
    EXPECT_EQ(shownPage(), static_cast<int>(Page::customIcon));
    EXPECT_EQ(selectedRow(RuleCategory::customIcon), -1);
}

TEST(Preview, TheButtonIsReachedByKeyboard) {
    clickPageButton(Page::copyFilesTo);
    EXPECT_TRUE(tabTo("Preview Menu"));
}

} // namespace
} // namespace tarnwick::gui
