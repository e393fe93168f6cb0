#include "app/LoginItemRefusal.h"

#include "tests/support/InMemoryPlatform.h"

#include <gtest/gtest.h>

namespace tarnwick::testing {
namespace {

class LoginItemRefusalTest : public ::testing::Test {
protected:
    InMemoryPlatform platform_;
};

TEST_F(LoginItemRefusalTest, AnApplicationThatIsNoLoginItemGoesOnWithoutAnAlert) {
    refuseLoginItemStart(platform_.ports());
    EXPECT_TRUE(platform_.log.lines().empty());
}

TEST_F(LoginItemRefusalTest, ALoginItemSeesOneAlertAndThenEndsWithStatusZero) {
    platform_.loginItems.present = true;
    refuseLoginItemStart(platform_.ports());
    EXPECT_EQ(platform_.log.lines(), (std::vector<std::string>{"alert ", "exit 0"}));
    EXPECT_EQ(platform_.alerts.shown.size(), 1U);
}

TEST_F(LoginItemRefusalTest, TheAlertIsAWarningWithoutMessageTextAndWithThePlatformsButton) {
    platform_.loginItems.present = true;
    refuseLoginItemStart(platform_.ports());
    ASSERT_EQ(platform_.alerts.shown.size(), 1U);
    const AlertRequest expected{.style = AlertStyle::warning,
        .messageText = "",
        .informativeText =
            "Tarnwick is a Finder plug-in,and it starts with the system without adding it to the "
            "startup item.",
        .buttons = {}};
    EXPECT_EQ(platform_.alerts.shown[0], expected);
}

TEST_F(LoginItemRefusalTest, TheAlertsTextIsLocalised) {
    platform_.loginItems.present = true;
    platform_.bundle
        .texts["Tarnwick is a Finder plug-in,and it starts with the system without adding it to the "
               "startup item."] = "Nicht nötig.";
    refuseLoginItemStart(platform_.ports());
    ASSERT_EQ(platform_.alerts.shown.size(), 1U);
    EXPECT_EQ(platform_.alerts.shown[0].informativeText, "Nicht nötig.");
}

TEST_F(LoginItemRefusalTest, TheLoginItemItselfIsLeftAlone) {
    platform_.loginItems.present = true;
    refuseLoginItemStart(platform_.ports());
    EXPECT_TRUE(platform_.loginItems.present);
}

} // namespace
} // namespace tarnwick::testing
