#include "app/ApplicationDelegate.h"
#include "tests/support/InMemoryPlatform.h"
#include "tests/support/InMemoryWindow.h"

#include <gtest/gtest.h>

namespace tarnwick::testing {
namespace {

class ApplicationDelegateTest : public ::testing::Test {
protected:
    InMemoryPlatform platform_;
    InMemoryApplicationWindow window_{platform_.log};
    ApplicationDelegate delegate_{platform_.ports(), window_};
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

} // namespace
} // namespace tarnwick::testing
