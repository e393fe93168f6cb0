#include "tests/gui/Foreign.h"
#include "tests/gui/Input.h"
#include "tests/gui/Shown.h"

#include <gtest/gtest.h>

namespace tarnwick::gui {
namespace {

TEST(Reordering, DraggingUpLandsInTheGap) {
    dragRowIntoGap(RuleCategory::createNewFile, 3, 1);
    EXPECT_EQ(sharedNames("arrOfCreateNewFile", 4), "['TXT', 'Word', 'RTF', 'XML']");
    EXPECT_EQ(cellText(RuleCategory::createNewFile, 1, "Extension"), "docx");
    EXPECT_EQ(selectedRow(RuleCategory::createNewFile), -1);
    EXPECT_FALSE(removeButtonIsEnabled(RuleCategory::createNewFile));
}

TEST(Reordering, DraggingDownLandsOnePlaceFurther) {
    dragRowIntoGap(RuleCategory::createNewFile, 0, 2);
    EXPECT_EQ(sharedNames("arrOfCreateNewFile", 4), "['Word', 'RTF', 'TXT', 'XML']");
}

TEST(Reordering, ADropOnARowIsRefused) {
    const auto before = sharedNames("arrOfCreateNewFile", 9);
    dragRowOntoRow(RuleCategory::createNewFile, 0, 3);
    EXPECT_EQ(sharedNames("arrOfCreateNewFile", 9), before);
    EXPECT_EQ(selectedRow(RuleCategory::createNewFile), 0);
}

TEST(Reordering, ATargetDroppedBelowTheLastRowMovesToTheEnd) {
    clickPageButton(Page::copyFilesTo);
    clickButton("Reset List");
    dragRowIntoGap(RuleCategory::copyFilesTo, 0, 4);
    EXPECT_EQ(shared("[r['realPath'].split('/')[-1] for r in d['arrOfCopyFilesTo']]"),
        "['Pictures', 'Music', 'Movies', 'Downloads']");
}

TEST(Reordering, ACustomIconMoves) {
    clickPageButton(Page::customIcon);
    dragRowIntoGap(RuleCategory::customIcon, 4, 0);
    EXPECT_EQ(sharedNames("arrOfCustomIcon", 3), "['Cloud', 'App', 'Apple']");
}

TEST(Reordering, AnOthersItemMovesAndAFixedOneDoesNot) {
    clickPageButton(Page::others);
    dragRowIntoGap(RuleCategory::others, 2, 0);
    EXPECT_EQ(sharedNames("arrOfOthers", 2), "['Copy Path', 'Cut']");
    scrollToRow(RuleCategory::others, 17);
    dragRowIntoGap(RuleCategory::others, 16, 13);
    EXPECT_EQ(shared("d['arrOfOthers'][16]['Action']"), "'Translate by Google'");
}

TEST(Reordering, OptionCommandAndAnArrowMoveTheSelectedRowWhichStaysSelected) {
    clickPageButton(Page::createNewFile);
    clickButton("Reset List");
    clickCell(RuleCategory::createNewFile, 1, "Extension");
    pressOptionCommand(Key::down);
    EXPECT_EQ(sharedNames("arrOfCreateNewFile", 4), "['TXT', 'XML', 'RTF', 'Word']");
    EXPECT_EQ(selectedRow(RuleCategory::createNewFile), 2);
    EXPECT_TRUE(removeButtonIsEnabled(RuleCategory::createNewFile));
    pressOptionCommand(Key::up);
    pressOptionCommand(Key::up);
    EXPECT_EQ(sharedNames("arrOfCreateNewFile", 4), "['RTF', 'TXT', 'XML', 'Word']");
    EXPECT_EQ(selectedRow(RuleCategory::createNewFile), 0);
    pressOptionCommand(Key::up);
    EXPECT_EQ(sharedNames("arrOfCreateNewFile", 4), "['RTF', 'TXT', 'XML', 'Word']");
    EXPECT_EQ(selectedRow(RuleCategory::createNewFile), 0);
}

} // namespace
} // namespace tarnwick::gui
