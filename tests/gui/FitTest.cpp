#include "tests/gui/Fit.h"
#include "tests/gui/Around.h"
#include "tests/gui/Driver.h"
#include "tests/gui/Foreign.h"
#include "tests/gui/Health.h"
#include "tests/gui/Input.h"
#include "tests/gui/Panels.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>

/// In the language that the program was started in, and in the smallest window.
namespace tarnwick::gui {
namespace {

void expectRoomFor(std::size_t least, const std::string& where) {
    const auto fit = fitOfWhatIsShown();
    EXPECT_GE(fit.controls, least) << where;
    for (const auto& fault : fit.faults) {
        ADD_FAILURE() << where << ": " << fault;
    }
}

void expectRoom(const std::string& where) {
    settle();
    expectRoomFor(13, where);
}

/// The action opens an alert or a panel, into which `lookIntoNext` lets look.
void expectRoomAfter(const char* action, void (*lookIntoNext)(std::function<void()>), std::size_t least) {
    bool hasLooked = false;
    lookIntoNext([&] {
        expectRoomFor(least, action);
        hasLooked = true;
    });
    sendAction(action);
    EXPECT_TRUE(waitUntil([&] { return hasLooked; })) << action;
}

TEST(Fit, EveryPageHasRoomForItsTextsAndControls) {
    makeWindowSmallest();
    for (const auto page : allPages) {
        clickPageButton(page);
        expectRoom("page " + std::to_string(static_cast<int>(page)));
    }
}

TEST(Fit, EveryRowHasRoomForItsTexts) {
    makeWindowNarrow();
    for (const auto page : allPages) {
        clickPageButton(page);
        expectRoom("all rows of page " + std::to_string(static_cast<int>(page)));
    }
}

TEST(Fit, TheFindBarHasRoom) {
    makeWindowSmallest();
    clickPageButton(Page::others);
    pressCommand('f');
    expectRoom("the find bar");
    type("e");
    expectRoom("the find bar with a count");
    press(Key::escape);
}

TEST(Fit, NoticesHaveRoom) {
    makeWindowSmallest();
    clickPageButton(Page::createNewFile);
    setSystemState("carriesNoExtension = 1; copies = (\"/Users/somebody/Applications/Tarnwick.app\"); "
                   "forced = (arrOfCreateNewFile, arrOfOthers);");
    const auto before = fitOfWhatIsShown().controls;
    comeBack();
    settle();
    EXPECT_GT(fitOfWhatIsShown().controls, before + 3);
    expectRoom("with notices");
    setSystemState("");
    comeBack();
}

TEST(Fit, AlertsHaveRoom) {
    expectRoomAfter("initialize", lookIntoNextAlert, 3);
    const auto file = sandboxFolder() + "/settings.plist";
    saveInNextPanel(file);
    sendAction("exportSettings:");
    ASSERT_TRUE(waitUntil([&] { return std::filesystem::exists(file); }));
    chooseInNextPanel(file);
    expectRoomAfter("importSettings:", lookIntoNextAlert, 4);
    std::ofstream(file) << "something else";
    chooseInNextPanel(file);
    expectRoomAfter("importSettings:", lookIntoNextAlert, 2);
}

TEST(Fit, PanelsHaveRoom) {
    for (const auto* action : {"exportSettings:", "importSettings:", "doInstallScript"}) {
        expectRoomAfter(action, lookIntoNextPanel, 4);
    }
}

TEST(Fit, WhatIsCutAndWhatMeetsIsSeen) {
    makeWindowSmallest();
    clickPageButton(Page::createNewFile);
    spoilFit();
    const auto fit = fitOfWhatIsShown();
    mendFit();
    EXPECT_EQ(fit.faults.size(), 2U);
    EXPECT_TRUE(fitOfWhatIsShown().faults.empty());
}

} // namespace
} // namespace tarnwick::gui
