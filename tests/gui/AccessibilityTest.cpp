#include "tests/gui/Around.h"
#include "tests/gui/Controls.h"
#include "tests/gui/Driver.h"
#include "tests/gui/Health.h"
#include "tests/gui/Input.h"
#include "tests/gui/Shown.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace tarnwick::gui {
namespace {

constexpr Page pages[] = {
    Page::createNewFile, Page::copyFilesTo, Page::commonPath, Page::customIcon, Page::others, Page::moreApps};

bool isShown(const ControlFacts& facts) {
    const auto controls = visibleControls();
    return std::find(controls.begin(), controls.end(), facts) != controls.end();
}

TEST(Accessibility, TheButtonOfTheCurrentPageAloneSaysThatItIs) {
    for (const auto page : pages) {
        clickPageButton(page);
        for (const auto other : pages) {
            EXPECT_EQ(isSaidToBeCurrent(other), other == page)
                << "button " << static_cast<int>(other) << " on page " << static_cast<int>(page);
        }
    }
}

TEST(Accessibility, EveryControlOfEveryPageHasALabelOfItsOwn) {
    for (const auto page : pages) {
        clickPageButton(page);
        if (page == Page::copyFilesTo) {
            clickButton("Reset List");
        }
        std::set<std::pair<std::string, std::string>> seen;
        for (const auto& control : visibleControls()) {
            EXPECT_NE(control.kind, "other") << control.label;
            EXPECT_FALSE(control.label.empty()) << control.kind << " on page " << static_cast<int>(page);
            if (control.kind != "text") {
                EXPECT_TRUE(seen.emplace(control.kind, control.label).second)
                    << control.kind << " " << control.label << " on page " << static_cast<int>(page);
            }
        }
        EXPECT_GT(seen.size(), 8U);
    }
}

TEST(Accessibility, ARowsControlsNameTheRow) {
    clickPageButton(Page::createNewFile);
    EXPECT_TRUE(isShown({"check box", "Offer TXT in the menu"}));
    EXPECT_TRUE(isShown({"check box", "Offer TXT in the main menu"}));
    EXPECT_TRUE(isShown({"field", "Name of Word"}));
    EXPECT_TRUE(isShown({"image", "Icon of Word"}));
    EXPECT_TRUE(isShown({"table", "New File"}));
}

void expectRolesAndLabels(const std::string& where) {
    for (const auto& control : visibleControls()) {
        EXPECT_NE(control.kind, "other") << where << ": " << control.label;
        EXPECT_FALSE(control.label.empty()) << where << ": " << control.kind;
    }
}

TEST(Accessibility, TheFindBarAndTheNoticesHaveRolesAndLabels) {
    clickPageButton(Page::others);
    pressCommand('f');
    type("e");
    settle();
    EXPECT_TRUE(isShown({"field", "Find in More Items"}));
    EXPECT_TRUE(isShown({"button", "Find Previous"}));
    expectRolesAndLabels("the find bar");
    press(Key::escape);
    setSystemState("extensionIsOff = 1; forced = (arrOfOthers);");
    comeBack();
    settle();
    EXPECT_TRUE(isShown({"button", "Turn On\u2026"}));
    EXPECT_TRUE(isShown({"text", "The Finder reports that the extension of Tarnwick is turned off."}));
    expectRolesAndLabels("the notices");
    setSystemState("");
    comeBack();
    settle();
}

TEST(Accessibility, WhatIsNotPlainSaysMoreOfItself) {
    const std::set<std::string> plain{"Remove", "Choose Folder\u2026", "Add Templates\u2026",
        "Add Folders\u2026", "Add Pictures\u2026", "Add Items\u2026", "Enable all templates",
        "Enable all icons", "Enable all items", "Snapfin, View in Store", "Allbright, View in Store",
        "Website, Visit"};
    for (const auto page : pages) {
        clickPageButton(page);
        for (const auto& label : controlsWithoutHelp()) {
            EXPECT_EQ(plain.count(label), 1U) << label;
        }
    }
}

TEST(Accessibility, EveryMenuItemHasATitleAndSaysWhyItCannotBeChosen) {
    clickPageButton(Page::commonPath);
    const auto items = menuItems();
    EXPECT_GT(items.size(), 40U);
    std::size_t explained = 0;
    for (const auto& item : items) {
        EXPECT_FALSE(item.title.empty());
        explained += !item.isEnabled && !item.toolTip.empty() ? 1 : 0;
    }
    // The list is empty: what is about a row cannot be done.
    EXPECT_GT(explained, 5U);
}

TEST(Accessibility, ALockedRowSaysWhyItCannotBeChanged) {
    clickPageButton(Page::others);
    const std::string why = "This item is always on and keeps its name and its place.";
    // The last three of the factory's list.
    for (long row = 15; row < 18; ++row) {
        for (const auto* column : {"OthersDisplayName", "OthersNote"}) {
            EXPECT_EQ(cellLook(RuleCategory::others, row, column).help, why) << row << column;
        }
    }
    EXPECT_EQ(cellLook(RuleCategory::others, 0, "OthersDisplayName").help, "");
}

TEST(Accessibility, TheTabKeyGoesFromTheSidebarThroughThePageAndBack) {
    clickPageButton(Page::copyFilesTo);
    std::vector<std::string> labels;
    for (const auto& control : tabOrder()) {
        labels.push_back(control.label);
    }
    EXPECT_EQ(labels,
        (std::vector<std::string>{"New File", "Copy & Move To", "Common Folders", "Custom Icons",
            "More Items", "More Apps", "Preview Menu", "Help", "Offer copying to these folders",
            "Offer moving to these folders", "Show icons in the menu", "Play a sound after copying or moving",
            "Copy & Move To", "Show Next", "Add Folders\u2026", "Reset List"}));
}

} // namespace
} // namespace tarnwick::gui
