#include "integration/InstalledApplications.h"
#include "integration/Links.h"
#include "integration/ScriptHelper.h"
#include "integration/SystemShortcuts.h"
#include "tests/support/SettingsFixture.h"

namespace tarnwick::testing {
namespace {

/// What goes out to the script, the browser and the register, beyond the plain cases.
class HandlerCallTest : public SettingsFixture {
protected:
    void install() { platform_.userScripts.installed.insert("/scripts/applescript.scpt"); }
};

TEST_F(HandlerCallTest, EveryHandlersEventDiffersInNothingButItsName) {
    install();
    controller_.restartFinder();
    controller_.openServicesOfSystemPreferences();
    platform_.runLoop.runMain();
    controller_.initialize();
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
    controller_.restartFinder();
    platform_.userScripts.installed.clear();
    controller_.restartFinder();
    EXPECT_EQ(platform_.userScripts.events.size(), 1U);
    EXPECT_EQ(platform_.systemLog.lines.size(), 1U);
}

TEST_F(HandlerCallTest, AnyOtherAnswerThanTheFirstButtonInitializesNothing) {
    install();
    for (const auto answer : {0L, 999L, 1001L}) {
        platform_.alerts.answers = {answer};
        controller_.initialize();
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
    controller_.initialize();
    const AlertRequest expected{
        .messageText = "Warnung", .informativeText = "Alles weg.", .buttons = {"Gut", "Abbrechen"}};
    EXPECT_EQ(platform_.alerts.shown.front(), expected);
}

TEST_F(HandlerCallTest, ARestartRequestStaysStoredAndIsOverwrittenByTheNext) {
    platform_.preferences.shared.insert_or_assign(
        "askActionFromTarnwick", PlistValue(PlistDictionary{{"ActionType", "older"}, {"more", 1}}));
    controller_.restartFinderClick();
    EXPECT_EQ(shared("askActionFromTarnwick"), PlistValue(PlistDictionary{{"ActionType", "restartFinder"}}));
    EXPECT_FALSE(platform_.log.holds("shared synchronise"));
}

TEST_F(HandlerCallTest, TheHelpActionsOpenTheirExactAddresses) {
    controller_.initializeClick();
    controller_.helpServicesOfSystemPreferences();
    EXPECT_EQ(platform_.log.lines(),
        (std::vector<std::string>{"open URL https://tarnwick.halvane.example/help/restart-finder.html",
            "open URL https://tarnwick.halvane.example/help/services.html"}));
}

TEST_F(HandlerCallTest, AnErrorOfTheRegisterWithoutAnyCopyIsNotInstalledEither) {
    platform_.launchServices.registered["org.example.Nobody"] = {{}, true};
    EXPECT_FALSE(appWithBundleIdentifierInstalled(platform_.launchServices, "org.example.Nobody"));
}

TEST_F(HandlerCallTest, SeveralShortcutFilesAreLoggedAndParsedOneAfterTheOtherEvenUnreadableOnes) {
    platform_.propertyLists.files.insert_or_assign("/b.plist", PlistValue(PlistDictionary{}));
    getSystemShortcuts(platform_.ports());
    platform_.log.clear();
    platform_.openPanel.choose({"/a.plist", "/b.plist"});
    EXPECT_EQ(platform_.log.lines(),
        (std::vector<std::string>{"log /a.plist", "parse /a.plist", "log /b.plist", "parse /b.plist"}));
}

} // namespace
} // namespace tarnwick::testing
