#include "tests/gui/Driver.h"
#include "tests/gui/Dropping.h"
#include "tests/gui/Foreign.h"
#include "tests/gui/Input.h"
#include "tests/gui/Panels.h"
#include "tests/gui/Shown.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <fstream>

namespace tarnwick::gui {
namespace {

/// Names are typed and not confirmed before something else is done. Each test begins with lists as they come.
class OpenEdit : public ::testing::Test {
protected:
    void SetUp() override {
        for (const auto page : {Page::createNewFile, Page::others, Page::copyFilesTo}) {
            clickPageButton(page);
            clickButton("Reset List");
        }
        clickPageButton(Page::createNewFile);
    }
};

void startEditing(RuleCategory table, long row, const std::string& column) {
    clickCell(table, row, column, 2);
    ASSERT_TRUE(isEditing());
}

void startTyping(RuleCategory table, long row, const std::string& column, const std::string& text) {
    startEditing(table, row, column);
    pressCommand('a');
    type(text);
    ASSERT_TRUE(isEditing());
}

std::string names(const std::string& list, int count) {
    const auto stored = localNames(list, count);
    const auto published = sharedNames(list, count);
    return stored == published ? stored : stored + " but published " + published;
}

std::string templateNames(int count) {
    return names("arrOfCreateNewFile", count);
}

bool hasTemplate(const std::string& name) {
    return containerFolder("Templates/CreateNewFile").find("'" + name + "'") != std::string::npos;
}

constexpr auto createNewFile = RuleCategory::createNewFile;

TEST_F(OpenEdit, RemoveTakesTheEditedRowAndTheNextOneKeepsItsNameAndFile) {
    startEditing(createNewFile, 2, "NewFileDisplayName");
    clickButton("Remove");
    EXPECT_FALSE(isEditing());
    EXPECT_EQ(templateNames(4), "['TXT', 'RTF', 'Word', 'Excel']");
    EXPECT_EQ(local("d['arrOfCreateNewFile'][2]['modified']"), "'0'");
    EXPECT_TRUE(hasTemplate("Word.docx"));
    EXPECT_FALSE(hasTemplate("XML.xml"));
    EXPECT_FALSE(hasTemplate("XML.docx"));
}

TEST_F(OpenEdit, RemoveLeavesTheFixedActionBelowTheEditedRowAsItIs) {
    clickPageButton(Page::others);
    startEditing(RuleCategory::others, 14, "OthersDisplayName");
    clickButton("Remove");
    EXPECT_EQ(local("d['arrOfOthers'][14]['Action']"), "'Translate by Baidu'");
    EXPECT_EQ(local("d['arrOfOthers'][14]['displayName']"), "'Translate by Baidu'");
    EXPECT_EQ(shared("d['arrOfOthers'][14]['nameModified']"), "'0'");
}

TEST_F(OpenEdit, ResetListMakesTheFactoryListWithoutTheTypedName) {
    startTyping(createNewFile, 2, "NewFileDisplayName", "Letter");
    clickButton("Reset List");
    EXPECT_FALSE(isEditing());
    EXPECT_EQ(templateNames(4), "['TXT', 'RTF', 'XML', 'Word']");
    EXPECT_EQ(local("d['arrOfCreateNewFile'][2]['modified']"), "'0'");
    EXPECT_TRUE(hasTemplate("XML.xml"));
    EXPECT_FALSE(hasTemplate("Letter.xml"));
    EXPECT_EQ(cellText(createNewFile, 2, "NewFileDisplayName"), "XML");
}

TEST_F(OpenEdit, MovingByKeyTakesTheTypedNameAlong) {
    startTyping(createNewFile, 2, "NewFileDisplayName", "Letter");
    pressOptionCommand(Key::down);
    EXPECT_TRUE(waitUntil([] { return templateNames(5) == "['TXT', 'RTF', 'Word', 'Letter', 'Excel']"; }));
    EXPECT_TRUE(hasTemplate("Letter.xml"));
    EXPECT_TRUE(hasTemplate("Word.docx"));
    EXPECT_EQ(selectedRow(createNewFile), 3);
}

TEST_F(OpenEdit, AFolderChosenForTheRowClearsItsTypedName) {
    clickPageButton(Page::copyFilesTo);
    startTyping(RuleCategory::copyFilesTo, 1, "Note", "Album");
    const auto folder = sandboxFolder() + "/Photos";
    mkdir(folder.c_str(), 0700);
    chooseInNextPanel(folder);
    clickButton("Choose Folder\u2026");
    ASSERT_TRUE(
        waitUntil([&] { return shared("d['arrOfCopyFilesTo'][1]['realPath']") == "'" + folder + "'"; }));
    EXPECT_EQ(local("d['arrOfCopyFilesTo'][1]['displayName']"), "''");
    EXPECT_EQ(cellText(RuleCategory::copyFilesTo, 1, "Note"), "Photos");
}

TEST_F(OpenEdit, AddStoresTheTypedNameBeforeItsChooserOpens) {
    clickPageButton(Page::copyFilesTo);
    startTyping(RuleCategory::copyFilesTo, 1, "Note", "Album");
    const auto folder = sandboxFolder() + "/Added";
    mkdir(folder.c_str(), 0700);
    chooseInNextPanel(folder);
    clickButton("Add Folders\u2026");
    ASSERT_TRUE(waitUntil([] { return rowCount(RuleCategory::copyFilesTo) == 5; }));
    EXPECT_TRUE(waitUntil([] { return names("arrOfCopyFilesTo", 5) == "['', 'Album', '', '', 'Added']"; }));
}

TEST_F(OpenEdit, ARowSwitchTurnsItsOwnRowAndKeepsTheTypedName) {
    startTyping(createNewFile, 2, "NewFileDisplayName", "Letter");
    clickCheckBox(createNewFile, 5, "Enable");
    EXPECT_FALSE(isEditing());
    EXPECT_EQ(local("d['arrOfCreateNewFile'][2]['displayName']"), "'Letter'");
    EXPECT_EQ(
        local("[r['enable'] for r in d['arrOfCreateNewFile']][:7]"), "['1', '1', '1', '1', '1', 0, '1']");
    EXPECT_EQ(sharedNames("arrOfCreateNewFile", 6), "['TXT', 'RTF', 'Letter', 'Word', 'Excel', 'WPS_wps']");
}

TEST_F(OpenEdit, EnableAllTurnsEveryRowAndKeepsTheTypedName) {
    startTyping(createNewFile, 2, "NewFileDisplayName", "Letter");
    // Some are off as they come: the click turns all on.
    clickButton("Enable all templates");
    EXPECT_EQ(shared("len(d['arrOfCreateNewFile'])"), "15");
    EXPECT_EQ(templateNames(3), "['TXT', 'RTF', 'Letter']");
    startTyping(createNewFile, 2, "NewFileDisplayName", "Memo");
    clickButton("Enable all templates");
    EXPECT_EQ(shared("d['arrOfCreateNewFile']"), "[]");
    EXPECT_EQ(local("d['arrOfCreateNewFile'][2]['displayName']"), "'Memo'");
    EXPECT_EQ(local("d['enableAllOfCreateNewFiles']"), "False");
}

TEST_F(OpenEdit, AnotherPageIsShownAfterTheTypedNameIsStored) {
    startTyping(createNewFile, 2, "NewFileDisplayName", "Letter");
    clickPageButton(Page::customIcon);
    EXPECT_EQ(shownPage(), static_cast<int>(Page::customIcon));
    EXPECT_FALSE(isEditing());
    EXPECT_EQ(templateNames(3), "['TXT', 'RTF', 'Letter']");
}

TEST_F(OpenEdit, APageKeyDoesTheSame) {
    startTyping(createNewFile, 2, "NewFileDisplayName", "Letter");
    pressCommand('5');
    EXPECT_EQ(shownPage(), static_cast<int>(Page::others));
    EXPECT_EQ(templateNames(3), "['TXT', 'RTF', 'Letter']");
}

TEST_F(OpenEdit, DroppedFilesAreAddedAfterTheTypedName) {
    startTyping(createNewFile, 2, "NewFileDisplayName", "Letter");
    const auto file = sandboxFolder() + "/Report.txt";
    std::ofstream(file) << "Dear";
    dropFiles({file}, DropSpot::table);
    EXPECT_EQ(templateNames(3), "['TXT', 'RTF', 'Letter']");
    EXPECT_EQ(local("d['arrOfCreateNewFile'][-1]['displayName']"), "'Report'");
    EXPECT_EQ(rowCount(createNewFile), 16);
}

TEST_F(OpenEdit, EscapeBringsTheOldTextBackAndStoresNothing) {
    const auto before = local("d['arrOfCreateNewFile']");
    startTyping(createNewFile, 2, "NewFileDisplayName", "Letter");
    press(Key::escape);
    EXPECT_FALSE(isEditing());
    EXPECT_EQ(cellText(createNewFile, 2, "NewFileDisplayName"), "XML");
    EXPECT_EQ(local("d['arrOfCreateNewFile']"), before);
    EXPECT_EQ(selectedRow(createNewFile), 2);
    // The keyboard is the table's again.
    press(Key::down);
    EXPECT_EQ(selectedRow(createNewFile), 3);
    EXPECT_EQ(local("d['arrOfCreateNewFile']"), before);
}

TEST_F(OpenEdit, AnEditThatIsEndedMarksItsRecordAlsoWithTheSameText) {
    startEditing(createNewFile, 2, "NewFileDisplayName");
    clickPageButton(Page::others);
    EXPECT_EQ(local("[d['arrOfCreateNewFile'][2][k] for k in ('displayName', 'modified')]"), "['XML', '1']");
}

TEST_F(OpenEdit, AFieldThatIsTakenAwayStoresNothing) {
    const auto before = local("d['arrOfCreateNewFile']");
    startTyping(createNewFile, 2, "NewFileDisplayName", "Letter");
    reloadTable(createNewFile);
    EXPECT_FALSE(isEditing());
    EXPECT_EQ(local("d['arrOfCreateNewFile']"), before);
    EXPECT_EQ(cellText(createNewFile, 2, "NewFileDisplayName"), "XML");
}

TEST_F(OpenEdit, AClickOnAnotherNameGoesOnEditingThere) {
    startTyping(createNewFile, 2, "NewFileDisplayName", "Letter");
    startTyping(createNewFile, 3, "NewFileDisplayName", "Memo");
    press(Key::returnKey);
    EXPECT_EQ(templateNames(5), "['TXT', 'RTF', 'Letter', 'Memo', 'Excel']");
    EXPECT_TRUE(hasTemplate("Memo.docx"));
}

} // namespace
} // namespace tarnwick::gui
