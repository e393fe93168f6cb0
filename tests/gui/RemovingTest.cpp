#include "tests/gui/Foreign.h"
#include "tests/gui/Input.h"
#include "tests/gui/Shown.h"

#include <gtest/gtest.h>

namespace tarnwick::gui {
namespace {

TEST(Removing, TheButtonFollowsTheSelection) {
    EXPECT_FALSE(removeButtonIsEnabled(RuleCategory::createNewFile));
    clickCell(RuleCategory::createNewFile, 3, "NewFileDisplayName");
    EXPECT_EQ(selectedRow(RuleCategory::createNewFile), 3);
    EXPECT_TRUE(removeButtonIsEnabled(RuleCategory::createNewFile));
}

TEST(Removing, TheButtonRemovesTheRowAndItsFileAndSelectsTheRowAbove) {
    clickButton("Remove");
    EXPECT_EQ(rowCount(RuleCategory::createNewFile), 14);
    EXPECT_EQ(selectedRow(RuleCategory::createNewFile), 2);
    EXPECT_EQ(local("'Word' in [r['displayName'] for r in d['arrOfCreateNewFile']]"), "False");
    EXPECT_EQ(sharedNames("arrOfCreateNewFile"),
        "['TXT', 'RTF', 'XML', 'Excel', 'PPT', 'WPS_wps', 'WPS_et', 'WPS_dps']");
    EXPECT_EQ(containerFolder("Templates/CreateNewFile").find("Word.docx"), std::string::npos);
    EXPECT_NE(containerFolder("Templates/CreateNewFile").find("Excel.xlsx"), std::string::npos);
}

TEST(Removing, TheDeleteKeyDoesWhatTheButtonDoes) {
    press(Key::deleteKey);
    EXPECT_EQ(rowCount(RuleCategory::createNewFile), 13);
    EXPECT_EQ(selectedRow(RuleCategory::createNewFile), 1);
    EXPECT_EQ(cellText(RuleCategory::createNewFile, 2, "NewFileDisplayName"), "Excel");
}

TEST(Removing, WithoutASelectionTheDeleteKeyDoesNothing) {
    clickPageButton(Page::customIcon);
    clickPageButton(Page::createNewFile);
    for (long row = rowCount(RuleCategory::createNewFile); row > 5; --row) {
        clickCell(RuleCategory::createNewFile, 0, "NewFileDisplayName");
        clickButton("Remove");
    }
    clickEmptySpace(RuleCategory::createNewFile);
    EXPECT_EQ(selectedRow(RuleCategory::createNewFile), -1);
    EXPECT_FALSE(removeButtonIsEnabled(RuleCategory::createNewFile));
    press(Key::deleteKey);
    EXPECT_EQ(rowCount(RuleCategory::createNewFile), 5);
}

TEST(Removing, AProtectedActionCanBeSelectedButNotRemoved) {
    clickPageButton(Page::others);
    clickCell(RuleCategory::others, 1, "OthersDisplayName");
    EXPECT_EQ(selectedRow(RuleCategory::others), 1);
    EXPECT_FALSE(removeButtonIsEnabled(RuleCategory::others));
    press(Key::deleteKey);
    EXPECT_EQ(rowCount(RuleCategory::others), 18);
    press(Key::down);
    EXPECT_EQ(selectedRow(RuleCategory::others), 2);
    EXPECT_TRUE(removeButtonIsEnabled(RuleCategory::others));
}

TEST(Removing, RemovingBelowAProtectedActionDisablesTheButton) {
    press(Key::deleteKey);
    EXPECT_EQ(rowCount(RuleCategory::others), 17);
    EXPECT_EQ(selectedRow(RuleCategory::others), 1);
    EXPECT_FALSE(removeButtonIsEnabled(RuleCategory::others));
}

TEST(Removing, ResettingBringsTheListBackAndDisablesTheButton) {
    clickCell(RuleCategory::others, 4, "OthersDisplayName");
    EXPECT_TRUE(removeButtonIsEnabled(RuleCategory::others));
    clickButton("Reset List");
    EXPECT_EQ(rowCount(RuleCategory::others), 18);
    EXPECT_FALSE(removeButtonIsEnabled(RuleCategory::others));
    EXPECT_EQ(shared("d['arrOfOthers'][2]['Action']"), "'Copy Path'");
}

TEST(Removing, ResettingTheTemplatesBringsTheirFilesBack) {
    clickPageButton(Page::createNewFile);
    clickButton("Reset List");
    EXPECT_EQ(rowCount(RuleCategory::createNewFile), 15);
    EXPECT_EQ(shared("len(d['arrOfCreateNewFile'])"), "9");
    EXPECT_NE(containerFolder("Templates/CreateNewFile").find("Word.docx"), std::string::npos);
}

} // namespace
} // namespace tarnwick::gui
