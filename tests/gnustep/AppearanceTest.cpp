#include "AppearanceProbe.h"

#include <gtest/gtest.h>

using namespace tarnwick::probe;

TEST(Appearance, ATabViewWithoutTabsAndBorderDrawsNothing) {
    EXPECT_EQ(inkOfBareTabView(), 0);
}

TEST(Appearance, ADisabledCheckBoxIsPaler) {
    EXPECT_GT(darknessOfCheckBox(true), 0.4);
    EXPECT_LT(darknessOfCheckBox(false), 0.7 * darknessOfCheckBox(true));
}

TEST(Appearance, AFolderHasAPictureThatCanBeScaled) {
    EXPECT_TRUE(folderPictureSurvivesScaling());
}
