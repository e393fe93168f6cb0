#include "tests/gui/Foreign.h"
#include "tests/gui/Input.h"
#include "tests/gui/Shown.h"
#include "tests/support/Categories.h"

#include <gtest/gtest.h>

namespace tarnwick::gui {
namespace {

using testing::templates;

std::string storedNames() {
    return localNames("arrOfCreateNewFile", 4);
}

bool hasFile(const std::string& name) {
    return containerFolder("Templates/CreateNewFile").find(name) != std::string::npos;
}

void undo() {
    pressCommand('z');
}

void redo() {
    pressShiftCommand('z');
}

void typeName(long row, const std::string& name) {
    clickCell(templates, row, "NewFileDisplayName", 2);
    ASSERT_TRUE(isEditing());
    pressCommand('a');
    type(name);
}

TEST(Undo, AtTheStartThereIsNothingToTakeBackOrToRepeat) {
    EXPECT_EQ(undoItem(), (StepItem{"Undo", false}));
    EXPECT_EQ(redoItem(), (StepItem{"Redo", false}));
}

TEST(Undo, KeysBringARemovedRuleBackWithItsFileAndRemoveItAgain) {
    clickCell(templates, 3, "Extension");
    press(Key::deleteKey);
    ASSERT_FALSE(hasFile("Word.docx"));
    EXPECT_EQ(undoItem(), (StepItem{"Undo Remove \u201CWord\u201D", true}));
    undo();
    EXPECT_EQ(rowCount(templates), 15);
    EXPECT_EQ(selectedRow(templates), 3);
    EXPECT_TRUE(removeButtonIsEnabled(templates));
    EXPECT_TRUE(hasFile("Word.docx"));
    EXPECT_EQ(sharedNames("arrOfCreateNewFile", 4), "['TXT', 'RTF', 'XML', 'Word']");
    EXPECT_EQ(undoItem(), (StepItem{"Undo", false}));
    EXPECT_EQ(redoItem(), (StepItem{"Redo Remove \u201CWord\u201D", true}));
    redo();
    EXPECT_EQ(storedNames(), "['TXT', 'RTF', 'XML', 'Excel']");
    EXPECT_FALSE(hasFile("Word.docx"));
    undo();
    EXPECT_EQ(storedNames(), "['TXT', 'RTF', 'XML', 'Word']");
}

TEST(Undo, WhileANameIsEditedItMeansTheTypingAlone) {
    clickCell(templates, 4, "Extension");
    press(Key::space);
    EXPECT_EQ(undoItem(), (StepItem{"Undo Turn Off \u201CExcel\u201D", true}));
    typeName(0, "Memo");
    undo();
    EXPECT_TRUE(isEditing());
    undo();
    undo();
    EXPECT_TRUE(isEditing());
    EXPECT_EQ(local("d['arrOfCreateNewFile'][4]['enable']"), "0");
    press(Key::escape);
    EXPECT_FALSE(isEditing());
    EXPECT_EQ(storedNames(), "['TXT', 'RTF', 'XML', 'Word']");
    EXPECT_EQ(undoItem(), (StepItem{"Undo Turn Off \u201CExcel\u201D", true}));
    undo();
    EXPECT_EQ(local("d['arrOfCreateNewFile'][4]['enable']"), "'1'");
}

TEST(Undo, ANameThatAnActionEndsIsAStepOfItsOwn) {
    typeName(0, "Memo");
    clickCheckBox(templates, 1, "Enable");
    EXPECT_EQ(storedNames(), "['Memo', 'RTF', 'XML', 'Word']");
    EXPECT_EQ(undoItem(), (StepItem{"Undo Turn Off \u201CRTF\u201D", true}));
    undo();
    EXPECT_EQ(undoItem(), (StepItem{"Undo Rename \u201CTXT\u201D", true}));
    EXPECT_EQ(storedNames(), "['Memo', 'RTF', 'XML', 'Word']");
    undo();
    EXPECT_EQ(storedNames(), "['TXT', 'RTF', 'XML', 'Word']");
    EXPECT_TRUE(hasFile("TXT.txt"));
    EXPECT_EQ(local("d['arrOfCreateNewFile'][0]['modified']"), "'0'");
}

TEST(Undo, AResetGivesTheUsersListAndFilesBack) {
    clickCell(templates, 0, "Extension");
    press(Key::deleteKey);
    clickButton("Reset List");
    ASSERT_TRUE(hasFile("TXT.txt"));
    EXPECT_EQ(undoItem(), (StepItem{"Undo Reset List", true}));
    undo();
    EXPECT_EQ(rowCount(templates), 14);
    EXPECT_FALSE(hasFile("TXT.txt"));
    EXPECT_TRUE(hasFile("RTF.rtf"));
    undo();
    EXPECT_TRUE(hasFile("TXT.txt"));
    redo();
    redo();
    EXPECT_EQ(rowCount(templates), 15);
    EXPECT_EQ(shared("len(d['arrOfCreateNewFile'])"), "9");
    EXPECT_EQ(redoItem(), (StepItem{"Redo", false}));
}

} // namespace
} // namespace tarnwick::gui
