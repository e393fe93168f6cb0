#include "Files.h"
#include "Probe.h"
#include "WindowProbe.h"

#include <gtest/gtest.h>

using namespace tarnwick::probe;

TEST(Window, HandlesClicksPanelsLayersAndReturnAsOnMacOS) {
    const auto result = runWindow(40);
    EXPECT_EQ(result.clicksHandled, 40);
    EXPECT_TRUE(result.panelBeganAtOnce);
    EXPECT_EQ(result.panelAnswers, 1);
    EXPECT_EQ(result.panelAnswer, 1);
    EXPECT_EQ(result.panelFolder, "/usr");
    EXPECT_EQ(result.viewDidLoadCalls, 1);
    EXPECT_EQ(result.viewDidLoadCallsForAGivenView, 0);
    EXPECT_EQ(result.identifier, "name");
    EXPECT_NEAR(result.layerMiddle, 0, 0.01);
    EXPECT_NEAR(result.layerCorner, 1, 0.01);
    EXPECT_EQ(result.textAfterReturn, "x");
    EXPECT_EQ(result.defaultButtonPresses, 0);
}

TEST(Window, ShowsTheSideWhereReadingBeginsWhenItIsWiderThanTheScreen) {
    EXPECT_EQ(overhangOfTooWideWindow(300), std::pair(0.0, 300.0));
}

TEST(Window, ShowsItsRightSideWhenItIsWiderThanTheScreenAndReadFromRightToLeft) {
    turnReadingDirection();
    EXPECT_EQ(overhangOfTooWideWindow(300), std::pair(300.0, 0.0));
}

TEST(Window, IsAsLargeAsItSaysWhateverTheScaleFactor) {
    writeContent(defaultsFolder() + "/NSGlobalDomain.plist", "{ GSScaleFactor = 2; }");
    EXPECT_EQ(widthOfWindow(400), 400);
}
