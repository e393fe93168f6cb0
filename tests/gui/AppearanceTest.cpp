#include "tests/gui/Driver.h"
#include "tests/gui/Input.h"
#include "tests/gui/Look.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace tarnwick::gui {
namespace {

/// Another program changes the setting, then the session is told.
void change(const std::string& command) {
    ASSERT_EQ(std::system(("defaults " + command).c_str()), 0);
    announceAppearance();
}

void turnDark() {
    change("write NSGlobalDomain AppleInterfaceStyle Dark");
}

void turnLight() {
    change("delete NSGlobalDomain AppleInterfaceStyle");
}

/// The average of the components that the page's dark background has.
constexpr double darkPage = 0.12;
constexpr double tolerance = 0.005;

TEST(Appearance, TheOpenWindowFollowsTheSystemToDarkAndBack) {
    ASSERT_TRUE(waitUntil([] { return brightnessOfPage() == 1; }));
    const double lightCheckBox = brightnessOfEmptyCheckBox();
    turnDark();
    EXPECT_TRUE(waitUntil([] { return std::abs(brightnessOfPage() - darkPage) < tolerance; }));
    EXPECT_TRUE(waitUntil([] { return brightnessOfSidebar() < 0.2; }));
    EXPECT_TRUE(waitUntil([] { return brightestOfPageTitles() > 0.8; }));
    EXPECT_LT(brightnessOfEmptyCheckBox(), 0.6 * lightCheckBox);
    EXPECT_EQ(appearanceForLayers(), "NSAppearanceNameDarkAqua");
    turnLight();
    EXPECT_TRUE(waitUntil([] { return brightnessOfPage() == 1; }));
    EXPECT_EQ(appearanceForLayers(), "NSAppearanceNameAqua");
    EXPECT_TRUE(waitUntil([] { return brightnessOfSidebar() > 0.9; }));
    EXPECT_EQ(brightnessOfEmptyCheckBox(), lightCheckBox);
}

TEST(Appearance, ItFollowsAgainAndAgainAndLeavesTheSettingToOthers) {
    for (int time = 0; time < 3; ++time) {
        turnDark();
        EXPECT_TRUE(waitUntil([] { return std::abs(brightnessOfPage() - darkPage) < tolerance; })) << time;
        EXPECT_EQ(std::system("defaults read NSGlobalDomain AppleInterfaceStyle | grep -q Dark"), 0);
        turnLight();
        EXPECT_TRUE(waitUntil([] { return brightnessOfPage() == 1; })) << time;
        EXPECT_NE(std::system("defaults read NSGlobalDomain AppleInterfaceStyle 2>/dev/null"), 0);
    }
}

TEST(Appearance, TheColourOfTheWindowIsSeenOnEveryPageAndInTheSidebar) {
    constexpr Colour green{0, 1, 0, 1};
    constexpr double shade = 0.06;
    for (const auto page : allPages) {
        clickPageButton(page);
        colourTheWindow(green);
        settle();
        EXPECT_EQ(colourOfPage(), green) << static_cast<int>(page);
        const auto sidebar = colourOfSidebar();
        EXPECT_LT(sidebar.red, shade);
        EXPECT_GT(sidebar.green, 1 - shade);
        EXPECT_LT(sidebar.blue, shade);
    }
    announceAppearance();
    EXPECT_TRUE(waitUntil([] { return brightnessOfPage() == 1; }));
}

} // namespace
} // namespace tarnwick::gui
