#include "tests/gui/Driver.h"
#include "tests/gui/Foreign.h"

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

} // namespace
} // namespace tarnwick::gui
