#include "TableProbe.h"

#include <gtest/gtest.h>

#include <chrono>

using namespace tarnwick::probe;
using Events = std::vector<std::string>;

TEST(Table, BuildsViewsForTheRowsOnScreenAlone) {
    TableWindow table(10000);
    EXPECT_EQ(table.rowHeight(), 30);
    const long rows = table.builtRows();
    EXPECT_GE(rows, 8);
    EXPECT_LE(rows, 10);
    table.scrollToRow(9999);
    EXPECT_LE(table.builtRows(), rows + 1);
    EXPECT_EQ(table.placeOfControl(9999, TableWindow::name), "9999 1");
    EXPECT_EQ(table.placeOfControl(0, TableWindow::name), "-1 -1");
    EXPECT_LE(table.viewsMade(), 3 * 4 * (rows + 1));
}

TEST(Table, ScrollsThroughTenThousandRowsWithoutDelay) {
    TableWindow table(10000);
    const auto begin = std::chrono::steady_clock::now();
    for (long row = 0; row < 10000; row += 100) {
        table.scrollToRow(row);
    }
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - begin;
    EXPECT_LT(taken.count(), 15);
}

TEST(Table, AsksForNoRowHeightWithoutARow) {
    TableWindow table(0);
    EXPECT_EQ(table.builtRows(), 0);
}

TEST(Table, GivesACellTheColumnsWidthAndItsContentFollows) {
    TableWindow table(3);
    const auto widths = table.widthsOfNameCell(1);
    const auto gap = widths.find(' ');
    EXPECT_GT(std::stol(widths), 150);
    EXPECT_EQ(widths.substr(0, gap), widths.substr(gap + 1));
}

TEST(Table, TheRowsOfATableThatIsReloadedAreMadeWhenTheyAreShown) {
    TableWindow table(40);
    const long rows = table.builtRows();
    const long made = table.viewsMade();
    for (int times = 0; times < 3; ++times) {
        table.reloadUnseen();
    }
    EXPECT_EQ(table.viewsMade(), made);
    EXPECT_EQ(table.builtRows(), 0);
    table.reload();
    EXPECT_EQ(table.builtRows(), rows);
    EXPECT_EQ(table.viewsMade(), made + 3 * rows);
}

TEST(Table, TheMouseFindsRowsThatHaveNotBeenShownYet) {
    TableWindow table(40);
    table.reloadUnseen();
    EXPECT_TRUE(table.controlTakesClick(2, TableWindow::check));
    EXPECT_FALSE(table.controlTakesClick(2, TableWindow::path));
}

TEST(Table, ScrollingBeforeTheRowsAreShownMakesThoseThatComeIntoSightAlone) {
    TableWindow table(10000);
    const long rows = table.builtRows();
    const long made = table.viewsMade();
    table.reloadUnseen();
    table.scrollToRow(5000);
    EXPECT_LE(table.viewsMade(), made + 3 * (rows + 1));
    EXPECT_EQ(table.placeOfControl(5000, TableWindow::name), "5000 1");
}

TEST(Table, AClickSelectsThenSendsTheAction) {
    TableWindow table(3);
    table.click(1, TableWindow::path);
    EXPECT_EQ(table.takeEvents(), (Events{"selection 1", "action 1"}));
    EXPECT_EQ(table.selectedRow(), 1);
}

TEST(Table, AClickInEmptySpaceDeselectsAndSendsTheAction) {
    TableWindow table(3);
    table.click(1, TableWindow::path);
    table.takeEvents();
    table.clickEmptySpace();
    EXPECT_EQ(table.takeEvents(), (Events{"selection -1", "action -1"}));
    EXPECT_EQ(table.selectedRow(), -1);
}

TEST(Table, AnEmptyTableSendsTheActionToo) {
    TableWindow table(0);
    table.clickEmptySpace();
    EXPECT_EQ(table.takeEvents(), Events{"action -1"});
}

TEST(Table, ADoubleClickSendsTheDoubleActionAfterTheAction) {
    TableWindow table(3);
    table.click(2, TableWindow::path, 2);
    EXPECT_EQ(table.takeEvents(), (Events{"selection 2", "action 2", "double 2"}));
    table.clickEmptySpace(2);
    EXPECT_EQ(table.takeEvents(), (Events{"selection -1", "action -1", "double -1"}));
}

TEST(Table, ACheckBoxTakesItsClickAndTheSelectionStays) {
    TableWindow table(3);
    table.click(0, TableWindow::path);
    table.takeEvents();
    table.click(2, TableWindow::check);
    EXPECT_EQ(table.takeEvents(), Events{"check 2"});
    EXPECT_EQ(table.selectedRow(), 0);
}

TEST(Table, ArrowKeysMoveTheSelection) {
    TableWindow table(40);
    table.click(0, TableWindow::path);
    for (int times = 0; times < 20; ++times) {
        table.press(TableKey::down);
    }
    EXPECT_EQ(table.selectedRow(), 20);
    EXPECT_GT(table.scrolledBy(), 0);
    table.press(TableKey::up);
    EXPECT_EQ(table.selectedRow(), 19);
}
