#include "tests/gui/Controls.h"
#include "tests/gui/Foreign.h"
#include "tests/gui/Input.h"
#include "tests/gui/Shown.h"
#include "tests/support/Categories.h"

#include <gtest/gtest.h>

namespace tarnwick::gui {
namespace {

using testing::templates;
const ControlFacts tableOfTemplates{"table", "New File"};
const ControlFacts fieldOnTemplates{"field", "Find in New File"};

/// On the page of new files, with the bar closed and the first row selected.
class Finding : public ::testing::Test {
protected:
    void SetUp() override {
        pressCommand('1');
        press(Key::escape);
        clickCell(templates, 0, "Extension");
    }
    void TearDown() override {
        pressCommand('1');
        press(Key::escape);
    }
    static void open(const std::string& text) {
        pressCommand('f');
        type(text);
    }
};

TEST_F(Finding, TheBarOpensAboveTheTableAndClosesAgain) {
    const double height = shownHeight(templates);
    pressCommand('f');
    EXPECT_EQ(keyboardControl(), fieldOnTemplates);
    EXPECT_LT(shownHeight(templates), height);
    EXPECT_GT(shownHeight(templates), height - 60);
    press(Key::escape);
    EXPECT_EQ(keyboardControl(), tableOfTemplates);
    EXPECT_EQ(shownHeight(templates), height);
    EXPECT_FALSE(isEditing());
    pressCommand('f');
    clickButton("Done");
    EXPECT_EQ(keyboardControl(), tableOfTemplates);
    EXPECT_EQ(shownHeight(templates), height);
}

TEST_F(Finding, TypingSelectsAndReturnAndTheCommandsGoOnAround) {
    open("WPS");
    EXPECT_EQ(selectedRow(templates), 6);
    EXPECT_TRUE(showsText("1 of 3"));
    press(Key::returnKey);
    EXPECT_EQ(selectedRow(templates), 7);
    EXPECT_EQ(keyboardControl(), fieldOnTemplates);
    pressCommand('g');
    EXPECT_EQ(selectedRow(templates), 8);
    EXPECT_TRUE(showsText("3 of 3"));
    pressCommand('g');
    EXPECT_EQ(selectedRow(templates), 6);
    pressShiftCommand('g');
    EXPECT_EQ(selectedRow(templates), 8);
    press(Key::escape);
    pressCommand('g');
    EXPECT_EQ(selectedRow(templates), 6);
}

TEST_F(Finding, AFoundRowIsScrolledTo) {
    scrollToRow(templates, 0);
    open("markdown");
    EXPECT_EQ(selectedRow(templates), 14);
    EXPECT_TRUE(rowIsInSight(templates, 14));
}

TEST_F(Finding, TheTextIsSelectedWhenTheBarOpensAgain) {
    open("word");
    press(Key::escape);
    open("excel");
    EXPECT_EQ(selectedRow(templates), 4);
    EXPECT_TRUE(showsText("1 of 1"));
}

TEST_F(Finding, WhatIsNowhereIsSaidSo) {
    open("qqq");
    EXPECT_TRUE(showsText("Not found"));
    EXPECT_EQ(selectedRow(templates), 0);
}

TEST_F(Finding, TheBarGoesFromPageToPage) {
    open("ma");
    EXPECT_TRUE(showsText("1 of 1"));
    const double height = shownHeight(RuleCategory::customIcon);
    pressCommand('4');
    EXPECT_EQ(keyboardControl(), (ControlFacts{"table", "Custom Icons"}));
    EXPECT_TRUE(showsText("4 found"));
    EXPECT_LT(shownHeight(RuleCategory::customIcon), height);
    pressCommand('6');
    pressCommand('4');
    EXPECT_TRUE(showsText("4 found"));
    pressCommand('f');
    EXPECT_EQ(keyboardControl(), (ControlFacts{"field", "Find in Custom Icons"}));
    press(Key::escape);
    EXPECT_EQ(shownHeight(RuleCategory::customIcon), height);
}

TEST_F(Finding, TheCountFollowsTheListAndTheSelection) {
    open("wps");
    clickCell(templates, 0, "NewFileDisplayName");
    EXPECT_TRUE(showsText("3 found"));
    clickCell(templates, 7, "NewFileDisplayName");
    EXPECT_TRUE(showsText("2 of 3"));
    clickButton("Remove");
    EXPECT_TRUE(showsText("1 of 2"));
    clickButton("Reset List");
    EXPECT_TRUE(showsText("1 of 3"));
}

TEST_F(Finding, EscapeInTheTableClosesTheBarToo) {
    const double height = shownHeight(templates);
    open("wps");
    clickCell(templates, 0, "NewFileDisplayName");
    ASSERT_EQ(keyboardControl(), tableOfTemplates);
    press(Key::escape);
    EXPECT_EQ(shownHeight(templates), height);
}

TEST_F(Finding, TheTabKeyVisitsTheBarAboveTheTable) {
    open("wps");
    press(Key::tab);
    EXPECT_EQ(keyboardControl(), (ControlFacts{"button", "Find Previous"}));
    press(Key::space);
    EXPECT_TRUE(showsText("3 of 3"));
    ASSERT_TRUE(tabTo("Find Next"));
    press(Key::space);
    EXPECT_TRUE(showsText("1 of 3"));
    ASSERT_TRUE(tabTo("Done"));
    press(Key::tab);
    EXPECT_EQ(keyboardControl(), tableOfTemplates);
}

TEST_F(Finding, AnEditEndsBeforeTheBarOpensAndBeforeAStep) {
    clickCell(templates, 3, "NewFileDisplayName");
    press(Key::returnKey);
    ASSERT_EQ(keyboardControl().label, "Name of Word");
    type("Letter");
    pressCommand('f');
    EXPECT_EQ(local("d['arrOfCreateNewFile'][3]['displayName']"), "'Letter'");
    type("letter");
    EXPECT_TRUE(showsText("1 of 1"));
    clickCell(templates, 0, "Extension");
    clickCell(templates, 3, "NewFileDisplayName");
    press(Key::returnKey);
    type("Word");
    pressCommand('g');
    EXPECT_EQ(local("d['arrOfCreateNewFile'][3]['displayName']"), "'Word'");
    EXPECT_TRUE(showsText("Not found"));
}

TEST_F(Finding, TypingInTheTableSelectsTheRowOfThatName) {
    typeFast("p");
    EXPECT_EQ(selectedRow(templates), 5);
    typeFast("ages");
    EXPECT_EQ(selectedRow(templates), 9);
    EXPECT_TRUE(rowIsInSight(templates, 9));
    EXPECT_EQ(keyboardControl(), tableOfTemplates);
}

TEST_F(Finding, ASpaceTypedInANameDoesNotTurnTheRowOff) {
    typeFast("wps w");
    EXPECT_EQ(selectedRow(templates), 6);
    EXPECT_TRUE(cellIsOn(templates, 6, "Enable"));
    clickCell(templates, 0, "Extension");
    typeFast(" ");
    EXPECT_FALSE(cellIsOn(templates, 0, "Enable"));
    typeFast(" ");
    EXPECT_TRUE(cellIsOn(templates, 0, "Enable"));
}

} // namespace
} // namespace tarnwick::gui
