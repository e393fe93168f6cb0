#include "AppearanceProbe.h"

#include <gtest/gtest.h>

using namespace tarnwick::probe;

TEST(Appearance, AnEmptyFieldShowsItsPlaceholder) {
    EXPECT_EQ(inkOfField("", ""), 0);
    EXPECT_GT(inkOfField("", "Placeholder"), 0.02);
    EXPECT_EQ(inkOfField("x", "Placeholder"), inkOfField("x", ""));
}

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
