#include "tests/gui/Driver.h"
#include "tests/gui/Foreign.h"
#include "tests/gui/Input.h"
#include "tests/gui/Menus.h"
#include "tests/gui/Shown.h"
#include "tests/support/Categories.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

namespace tarnwick::gui {
namespace {

using testing::others;
using testing::templates;
constexpr auto name = "NewFileDisplayName";
constexpr auto actionName = "OthersDisplayName";

/// What the stand-ins for the desktop's programs were told.
bool wasTold(const std::string& file, const std::string& text) {
    return waitUntil([&] {
        std::ifstream stream(sandboxFolder() + "/" + file);
        const std::string told(std::istreambuf_iterator<char>(stream), {});
        return told.find(text) != std::string::npos;
    });
}

TEST(Commands, ARightClickSelectsTheRowAndShowsWhatItsListHas) {
    const auto items = openMenuOfCell(templates, 2, name);
    EXPECT_EQ(titlesOf(items),
        (std::vector<std::string>{"Rename", "Turn Off", "Show in Main Menu", "Show in Finder",
            "Open Template", "Move Up", "Move Down", "Remove", "Add\u2026", "Reset List", "Enable All"}));
    EXPECT_EQ(selectedRow(templates), 2);
    for (const auto& item : items) {
        EXPECT_TRUE(item.isEnabled) << item.title;
    }
    EXPECT_FALSE(itemTitled(items, "Show in Main Menu").isMarked);
}

TEST(Commands, AControlClickDoesTheSame) {
    const auto items = openMenuOfCell(templates, 4, name, "", MenuPress::leftWithControl);
    EXPECT_EQ(selectedRow(templates), 4);
    EXPECT_EQ(items.size(), 11U);
    EXPECT_FALSE(isEditing());
}

TEST(Commands, TheMenuOfARowShowsItsKeys) {
    const auto items = openMenuOfCell(templates, 0, name);
    EXPECT_EQ(itemTitled(items, "Rename").keys, "Return");
    EXPECT_EQ(itemTitled(items, "Turn Off").keys, "Space");
    EXPECT_EQ(itemTitled(items, "Show in Main Menu").keys, "Shift+Alt+M");
    EXPECT_EQ(itemTitled(items, "Move Down").keys, "AltGr+Alt+Down");
    EXPECT_EQ(itemTitled(items, "Remove").keys, "Backspace");
    EXPECT_EQ(itemTitled(items, "Add\u2026").keys, "Alt+N");
    EXPECT_EQ(itemTitled(items, "Reset List").keys, "");
}

TEST(Commands, WhatIsChosenActsOnTheRow) {
    openMenuOfCell(templates, 1, name, "Turn Off");
    EXPECT_EQ(sharedNames("arrOfCreateNewFile", 2), "['TXT', 'XML']");
    EXPECT_EQ(titlesOf(openMenuOfCell(templates, 1, name, "Turn On"))[1], "Turn On");
    EXPECT_EQ(sharedNames("arrOfCreateNewFile", 2), "['TXT', 'RTF']");
    openMenuOfCell(templates, 1, name, "Move Up");
    EXPECT_EQ(sharedNames("arrOfCreateNewFile", 2), "['RTF', 'TXT']");
    EXPECT_EQ(selectedRow(templates), 0);
    openMenuOfCell(templates, 0, name, "Move Down");
    EXPECT_EQ(sharedNames("arrOfCreateNewFile", 2), "['TXT', 'RTF']");
}

TEST(Commands, RenamingBeginsInTheRowsNameAndTakesSpaces) {
    openMenuOfCell(templates, 2, name, "Rename");
    ASSERT_TRUE(isEditing());
    pressCommand('a');
    type("My Letter");
    press(Key::returnKey);
    EXPECT_EQ(sharedNames("arrOfCreateNewFile", 3), "['TXT', 'RTF', 'My Letter']");
    EXPECT_EQ(rowCount(templates), 15);
}

TEST(Commands, AnEditInProgressEndsBeforeTheMenuOpens) {
    clickCell(templates, 1, name, 2);
    ASSERT_TRUE(isEditing());
    pressCommand('a');
    type("Letter");
    openMenuOfCell(templates, 3, name, "Remove");
    EXPECT_FALSE(isEditing());
    EXPECT_EQ(sharedNames("arrOfCreateNewFile", 4), "['TXT', 'Letter', 'My Letter', 'Excel']");
}

TEST(Commands, EmptySpaceOffersWhatIsAboutTheList) {
    clickPageButton(Page::commonPath);
    EXPECT_EQ(
        titlesOf(openMenuOfEmptySpace(RuleCategory::commonPath)), std::vector<std::string>{"Add\u2026"});
}

TEST(Commands, ADisabledItemSaysWhy) {
    clickPageButton(Page::others);
    const auto items = openMenuOfCell(others, 16, actionName);
    EXPECT_EQ(itemTitled(items, "Remove").toolTip, "This item cannot be removed.");
    EXPECT_FALSE(itemTitled(items, "Remove").isEnabled);
    EXPECT_FALSE(itemTitled(items, "Move Up").isEnabled);
    EXPECT_EQ(itemTitled(items, "Add\u2026").toolTip, "");
    EXPECT_FALSE(removeButtonIsEnabled(others));
    EXPECT_EQ(itemTitled(openMenuOfCell(others, 2, actionName), "Remove").toolTip, "");
    EXPECT_TRUE(removeButtonIsEnabled(others));
}

TEST(Commands, TheMenuBarHasThemForTheListThatIsShown) {
    clickPageButton(Page::others);
    openMenuOfCell(others, 2, actionName);
    const auto ofRow = openMenuOfCell(others, 2, actionName);
    EXPECT_EQ(openMenuOfBar("Rule"), ofRow);
    clickPageButton(Page::moreApps);
    for (const auto& item : openMenuOfBar("Rule")) {
        EXPECT_FALSE(item.isEnabled) << item.title;
        EXPECT_EQ(item.toolTip, "This page has no list.");
    }
}

TEST(Commands, NotesAndMainMenuSwitchesAreChangedByTheKeyboardAlone) {
    pressCommand('5');
    const auto before = selectedRow(others);
    press(Key::down);
    const auto noted = selectedRow(others);
    ASSERT_EQ(noted, before + 1);
    pressCommand('e');
    ASSERT_TRUE(isEditing());
    pressCommand('a');
    type("by key");
    press(Key::returnKey);
    EXPECT_EQ(local("d['arrOfOthers'][" + std::to_string(noted) + "]['Note']"), "'by key'");
    pressCommand('1');
    press(Key::up);
    const auto row = selectedRow(templates);
    ASSERT_GE(row, 0);
    pressShiftCommand('M');
    EXPECT_TRUE(cellIsOn(templates, row, "EnableMainMenu"));
    EXPECT_EQ(local("d['arrOfCreateNewFile'][" + std::to_string(row) + "]['enableMainMenu']"), "1");
}

TEST(Commands, TheMenuKeyOpensTheMenuOfTheSelectedRow) {
    clickPageButton(Page::createNewFile);
    clickCell(templates, 2, name);
    openMenuByKey(templates, "Show in Main Menu");
    EXPECT_TRUE(cellIsOn(templates, 2, "EnableMainMenu"));
}

TEST(Commands, TheViewMenuMarksThePageThatIsShownAndHelpIsTheHelpMenu) {
    clickPageButton(Page::customIcon);
    for (const auto& item : openMenuOfBar("View")) {
        EXPECT_EQ(item.isMarked, item.title == "Custom Icons") << item.title;
    }
    openMenuOfBar("View", "New File");
    EXPECT_EQ(shownPage(), static_cast<int>(Page::createNewFile));
    EXPECT_TRUE(isHelpMenu("Help"));
}

TEST(Commands, ATemplateIsShownByTheFileManagerAndOpenedInItsProgram) {
    clickPageButton(Page::createNewFile);
    openMenuOfCell(templates, 0, name, "Show in Finder");
    EXPECT_TRUE(wasTold("shown", "/Templates/CreateNewFile/TXT.txt"));
    openMenuOfCell(templates, 0, name, "Open Template");
    EXPECT_TRUE(wasTold("opened", "/Templates/CreateNewFile/TXT.txt\n"));
}

TEST(Commands, AllAreTurnedOffAndOnFromTheMenuAndTheSwitchShowsIt) {
    clickPageButton(Page::customIcon);
    const auto items = openMenuOfCell(RuleCategory::customIcon, 0, "CustomIconName", "Enable All");
    EXPECT_TRUE(itemTitled(items, "Enable All").isMarked);
    EXPECT_EQ(shared("len(d['arrOfCustomIcon'])"), "0");
    EXPECT_FALSE(buttonIsOn("Enable all icons"));
    openMenuOfCell(RuleCategory::customIcon, 0, "CustomIconName", "Enable All");
    EXPECT_EQ(shared("len(d['arrOfCustomIcon'])"), "20");
    EXPECT_TRUE(buttonIsOn("Enable all icons"));
}

} // namespace
} // namespace tarnwick::gui
