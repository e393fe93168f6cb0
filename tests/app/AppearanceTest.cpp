#include "app/ApplicationDelegate.h"
#include "tests/support/InMemoryPlatform.h"
#include "tests/support/InMemoryWindow.h"

#include <gtest/gtest.h>

namespace tarnwick::testing {
namespace {

constexpr Colour white{1, 1, 1, 1};
constexpr Colour dark{0.10999999940395355, 0.11999999731779099, 0.12999999523162842, 1.0};

class AppearanceTest : public ::testing::Test {
protected:
    void useStyle(const std::string& style) {
        platform_.preferences.systemWide["AppleInterfaceStyle"] = style;
    }
    [[nodiscard]] Colour backgroundAfterAChange() {
        window_.background = {};
        delegate_.darkModeChanged();
        return window_.background;
    }

    InMemoryPlatform platform_;
    InMemoryApplicationWindow window_{platform_.log};
    ApplicationDelegate delegate_{platform_.ports(), window_};
};

TEST_F(AppearanceTest, TheDarkColoursComponentsAreWidenedSinglePrecisionValues) {
    useStyle("Dark");
    EXPECT_EQ(backgroundAfterAChange(), dark);
}

TEST_F(AppearanceTest, AnyStyleThatIsSetIsDarkEvenAnEmptyOne) {
    for (const auto* style : {"Dark", "Light", ""}) {
        useStyle(style);
        EXPECT_EQ(backgroundAfterAChange(), dark) << style;
    }
}

TEST_F(AppearanceTest, AStyleInTheStandardDomainCountsToo) {
    platform_.preferences.local.insert_or_assign("AppleInterfaceStyle", PlistValue("Dark"));
    EXPECT_EQ(backgroundAfterAChange(), dark);
}

TEST_F(AppearanceTest, TheLastSystemBeforeMacOS1015IsWhiteAndALaterMajorVersionIsDark) {
    useStyle("Dark");
    platform_.process.minor = 14;
    platform_.process.patch = 6;
    EXPECT_EQ(backgroundAfterAChange(), white);
    platform_.process.major = 11;
    platform_.process.minor = 0;
    platform_.process.patch = 0;
    EXPECT_EQ(backgroundAfterAChange(), dark);
}

TEST_F(AppearanceTest, ChangingToDarkAndBackIsFollowedThroughTheNotification) {
    delegate_.applicationWillFinishLaunching();
    const auto change = [this] {
        platform_.notifications.post("AppleInterfaceThemeChangedNotification", 0);
        platform_.notifications.deliver();
    };
    useStyle("Dark");
    change();
    EXPECT_EQ(window_.background, dark);
    platform_.preferences.systemWide.clear();
    change();
    EXPECT_EQ(window_.background, white);
}

TEST_F(AppearanceTest, TheAppearanceAtTheLaunchIsLeftToTheSystemsTextBackground) {
    useStyle("Dark");
    delegate_.applicationWillFinishLaunching();
    EXPECT_TRUE(platform_.log.holds("text background"));
    EXPECT_FALSE(platform_.log.holds("background"));
}

TEST_F(AppearanceTest, ARefusedCopyNeitherObservesNorRelaunchesAnything) {
    platform_.workspace.registered["org.halvane.Tarnwick"] = {{"/a/Tarnwick.app"}, false};
    delegate_.applicationWillFinishLaunching();
    platform_.runLoop.runBackground();
    EXPECT_TRUE(platform_.notifications.handlers.empty());
    EXPECT_EQ(platform_.log.lines(), (std::vector<std::string>{"alert Warning", "exit 0"}));
}

} // namespace
} // namespace tarnwick::testing
