#include "TableProbe.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace tarnwick::probe;
using Events = std::vector<std::string>;

namespace {

/// A table whose row 1 is being edited and shows "new".
struct TableEditing : testing::Test {
    TableWindow table{40};

    void SetUp() override {
        table.click(1, TableWindow::name, 2);
        ASSERT_TRUE(table.isEditing());
        table.type("new");
        table.takeEvents();
    }

    /// How often the delegate was asked whether the edit may end.
    long ends() {
        const auto events = table.takeEvents();
        return std::count(events.begin(), events.end(), "end 1 new");
    }
};

} // namespace

TEST_F(TableEditing, ReturnCommitsOnce) {
    table.press(TableKey::returnKey);
    EXPECT_EQ(ends(), 1);
    EXPECT_FALSE(table.isEditing());
    EXPECT_EQ(table.names()[1], "new");
    EXPECT_EQ(table.selectedRow(), 1);
}

TEST_F(TableEditing, TabCommitsOnce) {
    table.press(TableKey::tab);
    EXPECT_EQ(ends(), 1);
    EXPECT_FALSE(table.isEditing());
}

TEST_F(TableEditing, AClickInAnotherRowCommitsOnceAndSelectsIt) {
    table.click(4, TableWindow::path);
    EXPECT_EQ(ends(), 1);
    EXPECT_FALSE(table.isEditing());
    EXPECT_EQ(table.selectedRow(), 4);
}

TEST_F(TableEditing, AClickInAFieldOutsideCommitsOnce) {
    table.clickFieldOutside();
    EXPECT_EQ(ends(), 1);
    EXPECT_FALSE(table.isEditing());
}

TEST_F(TableEditing, ARefusalKeepsTheEditAndTheSelection) {
    table.refuseEndOfEditing(true);
    table.click(4, TableWindow::path);
    EXPECT_EQ(ends(), 1);
    EXPECT_TRUE(table.isEditing());
    EXPECT_EQ(table.selectedRow(), 1);
    table.press(TableKey::returnKey);
    EXPECT_EQ(ends(), 1);
    EXPECT_TRUE(table.isEditing());
    table.refuseEndOfEditing(false);
    table.press(TableKey::returnKey);
    EXPECT_FALSE(table.isEditing());
}

TEST_F(TableEditing, TheEditSurvivesScrolling) {
    table.scrollToRow(39);
    EXPECT_EQ(ends(), 0);
    EXPECT_TRUE(table.isEditing());
    EXPECT_EQ(table.editedText(), "new");
    table.scrollToRow(0);
    table.press(TableKey::returnKey);
    EXPECT_EQ(table.names()[1], "new");
}

TEST_F(TableEditing, ATableThatIsReloadedKeepsItsFieldForAnEditThatEndsJustNow) {
    table.reloadUnseen();
    EXPECT_TRUE(table.isEditing());
    EXPECT_EQ(table.editedText(), "new");
    table.reload();
    EXPECT_FALSE(table.isEditing());
    EXPECT_EQ(ends(), 0);
    EXPECT_EQ(table.placeOfControl(1, TableWindow::name), "1 1");
}

TEST(Table, AFieldOfAReloadedTableCanBeEditedBeforeItIsShown) {
    TableWindow table(3);
    table.click(1, TableWindow::name);
    table.reloadUnseen();
    table.click(1, TableWindow::name);
    EXPECT_TRUE(table.isEditing());
}

TEST(Table, AClickEditsOnlyARowThatWasSelected) {
    TableWindow table(3);
    table.click(1, TableWindow::name);
    EXPECT_FALSE(table.isEditing());
    table.click(1, TableWindow::name);
    EXPECT_TRUE(table.isEditing());
    EXPECT_EQ(table.editedText(), "row1");
}
