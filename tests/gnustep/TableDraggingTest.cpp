#include "TableProbe.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace tarnwick::probe;
using Events = std::vector<std::string>;

TEST(TableDragging, ARowMovesUpIntoTheGap) {
    TableWindow table(4);
    table.dragIntoGap(3, 1);
    EXPECT_EQ(table.takeEvents().back(), "drop 3 above 1");
    EXPECT_EQ(table.names(), (std::vector<std::string>{"row0", "row3", "row1", "row2"}));
}

TEST(TableDragging, ARowMovesBelowTheLastOne) {
    TableWindow table(4);
    table.dragIntoGap(0, 4);
    EXPECT_EQ(table.names(), (std::vector<std::string>{"row1", "row2", "row3", "row0"}));
}

TEST(TableDragging, TheLineInTheGapIsThereOnlyDuringTheDrag) {
    TableWindow table(4);
    table.dragIntoGap(3, 1);
    EXPECT_EQ(table.dropMarksSeen(), 1);
    EXPECT_EQ(table.dropMarks(), 0);
}

TEST(TableDragging, ARefusedDropChangesNothingAndLeavesNoMark) {
    TableWindow table(4);
    table.dragOnto(0, 2);
    EXPECT_EQ(table.takeEvents(), Events{"selection 0"});
    EXPECT_EQ(table.names(), (std::vector<std::string>{"row0", "row1", "row2", "row3"}));
    EXPECT_EQ(table.dropMarks(), 0);
}

TEST(TableDragging, TheDataSourceMaySendADropElsewhere) {
    TableWindow table(4);
    table.retargetDropsOnRows();
    table.dragOnto(3, 1);
    EXPECT_EQ(table.takeEvents().back(), "drop 3 above 1");
}

TEST(TableDragging, TheTableScrollsWhileARowIsHeldAtItsEdge) {
    TableWindow table(100);
    table.retargetDropsOnRows();
    table.dragAtLowerEdge(0, 300);
    EXPECT_GE(table.scrolledBy(), 300);
    // Seven rows are on screen, and ten have come up from below.
    const auto names = table.names();
    EXPECT_GE(std::find(names.begin(), names.end(), "row0") - names.begin(), 16);
}
