#include "tests/gui/Foreign.h"
#include "tests/gui/Input.h"
#include "tests/gui/Shown.h"

#include <gtest/gtest.h>

namespace tarnwick::gui {
namespace {

void rename(RuleCategory table, long row, const std::string& column, const std::string& text) {
    clickCell(table, row, column, 2);
    ASSERT_TRUE(isEditing());
    pressCommand('a');
    type(text);
    press(Key::returnKey);
    EXPECT_FALSE(isEditing());
}

TEST(Editing, ADoubleClickRenamesATemplateAndItsFile) {
    rename(RuleCategory::createNewFile, 0, "NewFileDisplayName", "Memo");
    EXPECT_EQ(cellText(RuleCategory::createNewFile, 0, "NewFileDisplayName"), "Memo");
    EXPECT_EQ(shared("{k: v for k, v in d['arrOfCreateNewFile'][0].items()}"),
        "{'displayName': 'Memo', 'enable': '1', 'extension': 'txt', 'modified': '1'}");
    EXPECT_NE(containerFolder("Templates/CreateNewFile").find("Memo.txt"), std::string::npos);
    EXPECT_EQ(containerFolder("Templates/CreateNewFile").find("TXT.txt"), std::string::npos);
}

TEST(Editing, ReturnEditsTheSelectedRowsName) {
    clickCell(RuleCategory::createNewFile, 1, "Extension");
    press(Key::returnKey);
    ASSERT_TRUE(isEditing());
    pressCommand('a');
    type("Rich\u3001\u6587\u672C");
    press(Key::returnKey);
    EXPECT_FALSE(isEditing());
    EXPECT_EQ(cellText(RuleCategory::createNewFile, 1, "NewFileDisplayName"), "Rich\u3001\u6587\u672C");
    EXPECT_EQ(shared("d['arrOfCreateNewFile'][1]['displayName']"), "'Rich\u3001\u6587\u672C'");
}

TEST(Editing, SpaceTogglesTheSelectedRowsSwitch) {
    clickCell(RuleCategory::createNewFile, 2, "Extension");
    press(Key::space);
    EXPECT_FALSE(cellIsOn(RuleCategory::createNewFile, 2, "Enable"));
    EXPECT_EQ(local("d['arrOfCreateNewFile'][2]['enable']"), "0");
    press(Key::space);
    EXPECT_EQ(local("d['arrOfCreateNewFile'][2]['enable']"), "1");
    EXPECT_EQ(selectedRow(RuleCategory::createNewFile), 2);
}

TEST(Editing, AClickInAnotherRowEndsTheEditAndKeepsItsText) {
    clickCell(RuleCategory::createNewFile, 3, "NewFileDisplayName", 2);
    ASSERT_TRUE(isEditing());
    pressCommand('a');
    type("Letter");
    clickCell(RuleCategory::createNewFile, 6, "Extension");
    EXPECT_FALSE(isEditing());
    EXPECT_EQ(shared("d['arrOfCreateNewFile'][3]['displayName']"), "'Letter'");
    EXPECT_EQ(selectedRow(RuleCategory::createNewFile), 6);
}

TEST(Editing, AnOthersNoteIsStoredAndTheCellShowsTheName) {
    clickPageButton(Page::others);
    rename(RuleCategory::others, 0, "OthersNote", "Careful");
    EXPECT_EQ(shared("[d['arrOfOthers'][0][k] for k in ('Note', 'noteModified', 'nameModified')]"),
        "['Careful', '1', '0']");
    EXPECT_EQ(cellText(RuleCategory::others, 0, "OthersNote"), "Cut");
}

TEST(Editing, AFixedActionsNameCannotBeEdited) {
    clickCell(RuleCategory::others, 16, "OthersDisplayName", 2);
    EXPECT_FALSE(isEditing());
    press(Key::returnKey);
    EXPECT_FALSE(isEditing());
    EXPECT_EQ(shared("d['arrOfOthers'][16]['nameModified']"), "'0'");
}

TEST(Editing, AnEmptiedTargetNameShowsTheFoldersOwn) {
    clickPageButton(Page::copyFilesTo);
    clickButton("Reset List");
    ASSERT_EQ(rowCount(RuleCategory::copyFilesTo), 4);
    rename(RuleCategory::copyFilesTo, 0, "Note", "Inbox");
    EXPECT_EQ(shared("d['arrOfCopyFilesTo'][0]['displayName']"), "'Inbox'");
    clickCell(RuleCategory::copyFilesTo, 0, "Note", 2);
    pressCommand('a');
    press(Key::deleteKey);
    press(Key::returnKey);
    EXPECT_EQ(shared("d['arrOfCopyFilesTo'][0]['displayName']"), "''");
    EXPECT_EQ(cellText(RuleCategory::copyFilesTo, 0, "Note"), "Downloads");
}

TEST(Editing, ACustomIconsNameIsMarkedAsTheUsers) {
    clickPageButton(Page::customIcon);
    rename(RuleCategory::customIcon, 19, "CustomIconName", "Work");
    EXPECT_EQ(shared("[d['arrOfCustomIcon'][19][k] for k in ('displayName', 'modified')]"), "['Work', '1']");
}

} // namespace
} // namespace tarnwick::gui
