#include "app/ApplicationDelegate.h"
#include "tests/support/InMemoryPlatform.h"
#include "tests/support/InMemoryWindow.h"

#include <gtest/gtest.h>

namespace tarnwick::testing {
namespace {

class ApplicationDelegateTest : public ::testing::Test {
protected:
    InMemoryPlatform platform_;
    InMemoryWindowFrame window_{platform_.log};
    ApplicationDelegate delegate_{platform_.ports(), &window_};
};

TEST_F(ApplicationDelegateTest, LaunchSetsUpTheWindowObservesTheAppearanceQueuesTheRelaunchAndActivates) {
    delegate_.applicationWillFinishLaunching();
    EXPECT_EQ(platform_.log.lines(), (std::vector<std::string>{"movable by background", "text background",
                                         "observe notification AppleInterfaceThemeChangedNotification",
                                         "queue in background", "activate"}));
}

TEST_F(ApplicationDelegateTest, ClosingTheWindowQuits) {
    EXPECT_TRUE(delegate_.applicationShouldTerminateAfterLastWindowClosed());
}

TEST_F(ApplicationDelegateTest, AnOpenedFileIsOnlyLogged) {
    EXPECT_TRUE(delegate_.openFile("/a/b.txt"));
    EXPECT_EQ(platform_.log.lines(), std::vector<std::string>{"log /a/b.txt"});
}

TEST_F(ApplicationDelegateTest, AnInputSourceChangeIsOnlyLogged) {
    delegate_.handleInputSourceChange("changed");
    EXPECT_EQ(platform_.log.lines(), std::vector<std::string>{"log changed"});
}

TEST_F(ApplicationDelegateTest, AnObservedChangeIsLoggedWithAFullWidthColon) {
    delegate_.observeValue("key", "1");
    EXPECT_EQ(platform_.log.lines(), std::vector<std::string>{"log key\uFF1A1"});
}

TEST_F(ApplicationDelegateTest, AStyleOnCatalinaOrLaterTurnsTheBackgroundDark) {
    platform_.preferences.systemWide["AppleInterfaceStyle"] = "Anything";
    delegate_.darkModeChanged();
    const Colour dark{0.11F, 0.12F, 0.13F, 1.0};
    EXPECT_EQ(window_.background, dark);
    EXPECT_NE(window_.background.red, 0.11);
}

TEST_F(ApplicationDelegateTest, WithoutAStyleTheBackgroundIsWhite) {
    delegate_.darkModeChanged();
    EXPECT_EQ(window_.background, (Colour{1, 1, 1, 1}));
}

TEST_F(ApplicationDelegateTest, BeforeCatalinaTheBackgroundIsWhiteWhateverTheStyle) {
    platform_.systemVersion.minor = 14;
    platform_.preferences.systemWide["AppleInterfaceStyle"] = "Dark";
    delegate_.darkModeChanged();
    EXPECT_EQ(window_.background, (Colour{1, 1, 1, 1}));
}

TEST_F(ApplicationDelegateTest, TheAppearanceNotificationSetsTheBackground) {
    delegate_.applicationWillFinishLaunching();
    platform_.preferences.systemWide["AppleInterfaceStyle"] = "Dark";
    platform_.notifications.handlers.at("AppleInterfaceThemeChangedNotification")();
    EXPECT_EQ(window_.background.alpha, 1.0);
    EXPECT_LT(window_.background.red, 0.2);
}

TEST_F(ApplicationDelegateTest, WithoutAWindowNothingFails) {
    ApplicationDelegate delegate(platform_.ports(), nullptr);
    delegate.applicationWillFinishLaunching();
    delegate.darkModeChanged();
    EXPECT_TRUE(platform_.log.holds("queue in background"));
}

} // namespace
} // namespace tarnwick::testing
