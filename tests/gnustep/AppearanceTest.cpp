#include "AppearanceProbe.h"

#include <gtest/gtest.h>

using namespace tarnwick::probe;

TEST(Appearance, ATabViewWithoutTabsAndBorderDrawsNeither) {
    EXPECT_EQ(inkOfBareTabView(), 0);
}

TEST(Appearance, ATabViewHidesWhatIsBehindItUntilItIsToldNotTo) {
    EXPECT_GT(brightnessOfTabView(false), 0.9);
    EXPECT_EQ(brightnessOfTabView(true), 0);
}

TEST(Appearance, ADisabledCheckBoxIsGrey) {
    EXPECT_GT(saturationOfCheckBox(true), 0.5);
    EXPECT_LT(saturationOfCheckBox(false), 0.15);
}

TEST(Appearance, AMixedCheckBoxHasAPictureAndAValueOfItsOwn) {
    const auto mixed = pictureOfCheckBox(CheckBox::mixed);
    const auto on = pictureOfCheckBox(CheckBox::on);
    EXPECT_NE(mixed, on);
    EXPECT_NE(mixed, pictureOfCheckBox(CheckBox::off));
    EXPECT_EQ(pictureOfCheckBox(CheckBox::onAfterMixed), on);
    EXPECT_EQ(spokenValueOfCheckBox(CheckBox::off), 0);
    EXPECT_EQ(spokenValueOfCheckBox(CheckBox::on), 1);
    EXPECT_EQ(spokenValueOfCheckBox(CheckBox::mixed), 2);
}

TEST(Appearance, AFolderHasAPictureThatCanBeScaled) {
    EXPECT_TRUE(folderPictureSurvivesScaling());
}
