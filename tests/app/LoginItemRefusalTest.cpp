#include "app/LoginItemRefusal.h"

#include "tests/support/InMemoryPlatform.h"

#include <gtest/gtest.h>

namespace tarnwick::testing {
namespace {

class LoginItemRefusalTest : public ::testing::Test {
protected:
    void refuse() { refuseLoginItemStart(platform_.bundle, platform_.panels, platform_.process); }

    InMemoryPlatform platform_;
};

TEST_F(LoginItemRefusalTest, AnApplicationThatIsNoLoginItemGoesOnWithoutAnAlert) {
    refuse();
    EXPECT_TRUE(platform_.log.lines().empty());
}

TEST_F(LoginItemRefusalTest, ALoginItemSeesOneAlertAndThenEndsWithStatusZero) {
    platform_.bundle.loginItem = true;
    refuse();
    EXPECT_EQ(platform_.log.lines(), (std::vector<std::string>{"alert ", "exit 0"}));
    EXPECT_EQ(platform_.panels.alerts.size(), 1U);
}

TEST_F(LoginItemRefusalTest, TheAlertIsAWarningWithoutMessageTextAndWithThePlatformsButton) {
    platform_.bundle.loginItem = true;
    refuse();
    ASSERT_EQ(platform_.panels.alerts.size(), 1U);
    const AlertRequest expected{.style = AlertStyle::warning,
        .messageText = "",
        .informativeText =
            "Tarnwick is a Finder plug-in,and it starts with the system without adding it to the "
            "startup item.",
        .buttons = {}};
    EXPECT_EQ(platform_.panels.alerts[0], expected);
}

TEST_F(LoginItemRefusalTest, TheAlertsTextIsLocalised) {
    platform_.bundle.loginItem = true;
    platform_.bundle
        .texts["Tarnwick is a Finder plug-in,and it starts with the system without adding it to the "
               "startup item."] = "Nicht nötig.";
    refuse();
    ASSERT_EQ(platform_.panels.alerts.size(), 1U);
    EXPECT_EQ(platform_.panels.alerts[0].informativeText, "Nicht nötig.");
}

} // namespace
} // namespace tarnwick::testing
