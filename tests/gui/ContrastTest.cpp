#include "tests/gui/Contrast.h"
#include "tests/gui/Driver.h"
#include "tests/gui/Foreign.h"
#include "tests/gui/Input.h"
#include "tests/gui/Panels.h"

#include "ui/Page.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace tarnwick::gui {
namespace {

/// So that a measurement of nothing is not taken for a good one.
long numberOf(const std::vector<Contrast>& all, const std::string& kind, const std::string& what = "") {
    return std::count_if(all.begin(), all.end(),
        [&](const Contrast& one) { return one.kind == kind && (what.empty() || one.what == what); });
}

/// Exports the settings there, where the panels for them begin afterwards: in a folder with more in it than
/// has room, so deep that not all columns have room either.
void exportIntoDeepFolder() {
    const auto deep = std::filesystem::path(sandboxFolder()) / "a" / "deep" / "place";
    for (int number = 0; number < 30; ++number) {
        std::filesystem::create_directories(deep / std::to_string(number));
    }
    const auto file = deep / "settings.plist";
    saveInNextPanel(file);
    sendAction("exportSettings:");
    ASSERT_TRUE(waitUntil([&] { return std::filesystem::exists(file); }));
}

TEST(Contrast, EverythingOnEveryPageStandsOutFromItsGround) {
    for (const auto page : allPages) {
        clickPageButton(page);
        settle();
        const auto all = contrasts();
        EXPECT_EQ(tooLow(all), "") << "page " << static_cast<int>(page);
        EXPECT_GT(numberOf(all, "text"), 12);
        EXPECT_EQ(numberOf(all, "large text", "Help"), 1);
        EXPECT_EQ(numberOf(all, "picture"), 6);
        EXPECT_GT(numberOf(all, "border", "button"), 1);
    }
}

TEST(Contrast, BoxesOfEachStateStandOut) {
    clickPageButton(Page::createNewFile);
    settle();
    const auto all = contrasts();
    EXPECT_GT(numberOf(all, "border", "box that is off"), 3);
    EXPECT_GT(numberOf(all, "border", "box"), 3);
    EXPECT_EQ(numberOf(all, "mark", "Enable all templates"), 1);
}

TEST(Contrast, TheSelectedRowStandsOutWhereverTheKeyboardIs) {
    clickPageButton(Page::createNewFile);
    clickCell(RuleCategory::createNewFile, 2, "NewFileDisplayName");
    settle();
    EXPECT_EQ(tooLow(contrasts()), "");
    EXPECT_GT(saturationOfSelection(RuleCategory::createNewFile), 0.15);
    press(Key::tab);
    settle();
    EXPECT_EQ(tooLow(contrasts()), "");
    EXPECT_LT(saturationOfSelection(RuleCategory::createNewFile), 0.15);
}

TEST(Contrast, AnEditedNameHasARing) {
    clickPageButton(Page::createNewFile);
    clickCell(RuleCategory::createNewFile, 2, "NewFileDisplayName", 2);
    settle();
    EXPECT_GE(contrastOfRing(), 3);
    EXPECT_EQ(tooLow(contrasts()), "");
    EXPECT_GT(saturationOfSelection(RuleCategory::createNewFile), 0.15);
    press(Key::escape);
}

TEST(Contrast, WhateverHasTheKeyboardHasARingOutside) {
    for (const auto page : allPages) {
        clickPageButton(page);
        settle();
        if (page == Page::moreApps) {
            // It has no list to begin with.
            press(Key::tab);
            settle();
        }
        constexpr int stops = 20;
        for (int stop = 0; stop < stops; ++stop) {
            EXPECT_GE(contrastOfRing(), 3) << "page " << static_cast<int>(page) << ", stop " << stop;
            press(Key::tab);
            settle();
        }
    }
}

TEST(Contrast, TheFindBarStandsOut) {
    clickPageButton(Page::createNewFile);
    pressCommand('f');
    settle();
    const auto all = contrasts();
    EXPECT_EQ(tooLow(all), "");
    EXPECT_GE(contrastOfRing(), 3);
    EXPECT_EQ(numberOf(all, "text", "Find:"), 1);
    press(Key::escape);
    settle();
}

TEST(Contrast, AlertsAndPanelsStandOut) {
    exportIntoDeepFolder();
    std::vector<Contrast> all;
    lookIntoNextAlert([&] { all = contrasts(); });
    sendAction("initialize");
    ASSERT_TRUE(waitUntil([&] { return !all.empty(); }));
    EXPECT_EQ(tooLow(all), "");
    EXPECT_EQ(numberOf(all, "large text", "Warning"), 1);
    EXPECT_EQ(numberOf(all, "text", "Cancel"), 1);
    EXPECT_EQ(numberOf(all, "border", "button"), 2);
    for (const auto* action : {"exportSettings:", "importSettings:"}) {
        all.clear();
        lookIntoNextPanel([&] { all = contrasts(); });
        sendAction(action);
        ASSERT_TRUE(waitUntil([&] { return !all.empty(); })) << action;
        EXPECT_EQ(tooLow(all), "") << action;
        EXPECT_EQ(numberOf(all, "text", "Cancel"), 1) << action;
        EXPECT_EQ(numberOf(all, "picture"), 1) << action;
        EXPECT_GT(numberOf(all, "border", "button"), 0) << action;
        EXPECT_GT(numberOf(all, "knob"), 0) << action;
    }
}

} // namespace
} // namespace tarnwick::gui
