#include "tests/support/IntegrationFixture.h"

namespace tarnwick::testing {
namespace {

/// What goes out to the script, beyond the plain cases.
class HandlerCallTest : public IntegrationFixture {
protected:
    void install() { platform_.userScripts.installed.insert("/scripts/applescript.scpt"); }
};

TEST_F(HandlerCallTest, EveryHandlersEventDiffersInNothingButItsName) {
    install();
    integration_.scriptHelper.restartFinder();
    integration_.scriptHelper.openServicesOfSystemPreferences();
    platform_.runLoop.runMain();
    integration_.scriptHelper.initialize();
    auto& events = platform_.userScripts.events;
    ASSERT_EQ(events.size(), 3U);
    EXPECT_EQ(events[1].parameterText, "openServices");
    EXPECT_EQ(events[2].parameterText, "initialize");
    events[1].parameterText = events[2].parameterText = "restartFinder";
    EXPECT_EQ(events[0], restartFinderEventDescriptor("restartFinder"));
    EXPECT_EQ(events[1], events[0]);
    EXPECT_EQ(events[2], events[0]);
}

TEST_F(HandlerCallTest, ATaskIsMadeAnewForEveryCall) {
    install();
    integration_.scriptHelper.restartFinder();
    platform_.userScripts.installed.clear();
    integration_.scriptHelper.restartFinder();
    EXPECT_EQ(platform_.userScripts.events.size(), 1U);
    EXPECT_EQ(platform_.systemLog.lines.size(), 1U);
}

TEST_F(HandlerCallTest, AnyOtherAnswerThanTheFirstButtonInitializesNothing) {
    install();
    for (const auto answer : {0L, 999L, 1001L}) {
        platform_.panels.answers = {answer};
        integration_.scriptHelper.initialize();
    }
    EXPECT_TRUE(platform_.userScripts.events.empty());
    EXPECT_EQ(
        platform_.log.lines(), (std::vector<std::string>{"alert Warning", "alert Warning", "alert Warning"}));
}

TEST_F(HandlerCallTest, TheInitializeAlertIsLocalised) {
    platform_.bundle.texts = {{"Warning", "Warnung"}, {"OK", "Gut"}, {"Cancel", "Abbrechen"},
        {"All setting parameters will be deleted !\n\nIf it is still abnormal after initialization, delete "
         "all "
         "Tarnwick on the computer, restart the computer, go to the App Store to download, install.",
            "Alles weg."}};
    integration_.scriptHelper.initialize();
    const AlertRequest expected{
        .messageText = "Warnung", .informativeText = "Alles weg.", .buttons = {"Gut", "Abbrechen"}};
    EXPECT_EQ(platform_.panels.alerts.front(), expected);
}

} // namespace
} // namespace tarnwick::testing
