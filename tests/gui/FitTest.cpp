#include "tests/gui/Fit.h"
#include "tests/gui/Around.h"
#include "tests/gui/Driver.h"
#include "tests/gui/Health.h"
#include "tests/gui/Input.h"

#include <gtest/gtest.h>

/// In the language that the program was started in, and in the smallest window.
namespace tarnwick::gui {
namespace {

void expectRoom(const std::string& where) {
    settle();
    const auto fit = fitOfWhatIsShown();
    EXPECT_GT(fit.controls, 12U) << where;
    for (const auto& fault : fit.faults) {
        ADD_FAILURE() << where << ": " << fault;
    }
}

TEST(Fit, EveryPageHasRoomForItsTextsAndControls) {
    makeWindowSmallest();
    for (const auto page : allPages) {
        clickPageButton(page);
        expectRoom("page " + std::to_string(static_cast<int>(page)));
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
