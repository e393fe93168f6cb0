#include "tests/gui/Foreign.h"
#include "tests/gui/Input.h"
#include "tests/gui/Shown.h"

#include <gtest/gtest.h>

namespace tarnwick::gui {
namespace {

TEST(BigList, OnlyTheRowsOnScreenHaveControlsWhereverItIsScrolled) {
    clickPageButton(Page::commonPath);
    ASSERT_EQ(rowCount(RuleCategory::commonPath), 10000);
    for (const long row : {0L, 5000L, 9999L, 42L}) {
        scrollToRow(RuleCategory::commonPath, row);
        EXPECT_GT(builtRows(RuleCategory::commonPath), 5);
        EXPECT_LT(builtRows(RuleCategory::commonPath), 30);
        EXPECT_EQ(cellText(RuleCategory::commonPath, row, "commonPathDisplayName"),
            "Folder " + std::to_string(row));
    }
}

TEST(BigList, ARowFarDownIsRemovedAndTheRestStays) {
    clickCell(RuleCategory::commonPath, 7000, "commonPathDisplayName");
    press(Key::deleteKey);
    EXPECT_EQ(rowCount(RuleCategory::commonPath), 9999);
    EXPECT_EQ(shared("[d['arrOfCommonPath'][i]['displayName'] for i in (6999, 7000, 9998)]"),
        "['Folder 6999', 'Folder 7001', 'Folder 9999']");
}

TEST(BigList, ACommonFolderIsDraggedToAnotherPlace) {
    scrollToRow(RuleCategory::commonPath, 0);
    dragRowIntoGap(RuleCategory::commonPath, 3, 1);
    EXPECT_EQ(sharedNames("arrOfCommonPath", 4), "['Folder 0', 'Folder 3', 'Folder 1', 'Folder 2']");
    EXPECT_EQ(selectedRow(RuleCategory::commonPath), -1);
}

} // namespace
} // namespace tarnwick::gui
