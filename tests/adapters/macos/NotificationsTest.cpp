#include "StandInTest.h"

#include "platform/DistributedNotifications.h"

namespace tarnwick::standins {
namespace {

class NotificationsTest : public StandInTest {};

TEST_F(NotificationsTest, PostsThroughTheDistributedCentreWithTheGivenOptionsAndNothingElse) {
    inPool([] {
        makeDistributedNotifications()->post("askActionFromTarnwick", deliverImmediately | postToAllSessions);
    });
    EXPECT_EQ(
        calls(), (Calls{"CFNotificationCenterGetDistributedCenter()",
                     "CFNotificationCenterPostNotificationWithOptions(askActionFromTarnwick, no object, "
                     "no user info, 3)"}));
}

TEST_F(NotificationsTest, ObservesAnySenderOnTheMainQueue) {
    inPool([] { makeDistributedNotifications()->observe("AppleInterfaceThemeChangedNotification", [] {}); });
    EXPECT_EQ(
        calls(), Calls{"addObserverForName(AppleInterfaceThemeChangedNotification, any object, main queue)"});
}

TEST_F(NotificationsTest, TheHandlerOutlivesThePoolAndThePort) {
    auto heard = std::make_shared<int>(0);
    inPool([heard] { makeDistributedNotifications()->observe("a change", [heard] { ++*heard; }); });
    deliverNotification("another change");
    EXPECT_EQ(*heard, 0);
    deliverNotification("a change");
    deliverNotification("a change");
    EXPECT_EQ(*heard, 2);
}

} // namespace
} // namespace tarnwick::standins
