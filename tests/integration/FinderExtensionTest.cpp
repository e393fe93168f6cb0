#include "tests/support/SettingsFixture.h"

namespace tarnwick::testing {
namespace {

class FinderExtensionTest : public SettingsFixture {
protected:
    void useSystem(int major, int minor) {
        platform_.systemVersion.major = major;
        platform_.systemVersion.minor = minor;
    }
    /// Launches and gives how many prompts were shown.
    std::size_t promptsAtLaunch() {
        platform_.alerts.shown.clear();
        controller_.awakeFromNib();
        platform_.runLoop.runMain();
        return platform_.alerts.shown.size();
    }
};

TEST_F(FinderExtensionTest, TheFirstLaunchWithTheExtensionEnabledPromptsOnceAndTheSecondNot) {
    EXPECT_EQ(promptsAtLaunch(), 1U);
    EXPECT_EQ(local("ShownEnableExtensionAlert"), PlistValue(true));
    EXPECT_EQ(promptsAtLaunch(), 0U);
}

TEST_F(FinderExtensionTest, ADisabledExtensionPromptsAtEveryLaunchWhateverTheFlag) {
    platform_.finderSync.enabled = false;
    EXPECT_EQ(promptsAtLaunch(), 1U);
    EXPECT_EQ(promptsAtLaunch(), 1U);
}

TEST_F(FinderExtensionTest, ThePromptHasItsTextsAndOneButton) {
    promptsAtLaunch();
    const AlertRequest expected{.messageText = "Enable Extension",
        .informativeText = "The Tarnwick Finder extension must be enabled in System Preferences",
        .buttons = {"Open System Preferences"}};
    EXPECT_EQ(platform_.alerts.shown.front(), expected);
}

TEST_F(FinderExtensionTest, ThePromptComesAfterPublishingAndItsFlagIsSetOnceItIsClosed) {
    controller_.awakeFromNib();
    platform_.runLoop.runMain();
    const auto& lines = platform_.log.lines();
    const auto tail = std::vector<std::string>(lines.end() - 4, lines.end());
    EXPECT_EQ(tail, (std::vector<std::string>{"observe applications", "alert Enable Extension",
                        "show extension management", "local set ShownEnableExtensionAlert"}));
}

TEST_F(FinderExtensionTest, ThePromptsTextsAreNotLocalised) {
    platform_.bundle.texts["Enable Extension"] = "Erweiterung aktivieren";
    promptsAtLaunch();
    EXPECT_EQ(platform_.alerts.shown.front().messageText, "Enable Extension");
}

TEST_F(FinderExtensionTest, ClosingThePromptAnyOtherWayOpensNothing) {
    platform_.alerts.answers = {1001};
    promptsAtLaunch();
    EXPECT_FALSE(platform_.log.holds("show extension management"));
    EXPECT_EQ(local("ShownEnableExtensionAlert"), PlistValue(true));
}

TEST_F(FinderExtensionTest, BeforeTheManagementScreenExistedTheExtensionCountsAsEnabledWithoutAsking) {
    useSystem(10, 13);
    platform_.finderSync.enabled = false;
    EXPECT_TRUE(controller_.isExtensionEnabled());
    EXPECT_FALSE(platform_.log.holds("ask whether the extension is enabled"));
}

TEST_F(FinderExtensionTest, FromMojaveOnTheSystemIsAsked) {
    useSystem(10, 14);
    platform_.finderSync.enabled = false;
    EXPECT_FALSE(controller_.isExtensionEnabled());
    platform_.finderSync.enabled = true;
    EXPECT_TRUE(controller_.isExtensionEnabled());
}

TEST_F(FinderExtensionTest, OlderSystemsOpenTheSystemSettingsAtTheirTopLevel) {
    useSystem(10, 13);
    controller_.openSystemPreferences();
    EXPECT_EQ(platform_.log.lines(), std::vector<std::string>{"open URL x-apple.systempreferences://"});
}

TEST_F(FinderExtensionTest, NewerSystemsShowTheManagementScreen) {
    useSystem(10, 14);
    controller_.openSystemPreferences();
    EXPECT_EQ(platform_.log.lines(), std::vector<std::string>{"show extension management"});
}

TEST_F(FinderExtensionTest, ARestartRequestIsStoredWithoutSynchronisingAndThenPosted) {
    controller_.restartFinderClick();
    EXPECT_EQ(shared("askActionFromTarnwick"), PlistValue(PlistDictionary{{"ActionType", "restartFinder"}}));
    EXPECT_EQ(
        platform_.log.lines(), (std::vector<std::string>{"shared open H7Q2ZK5RX9.org.halvane.Tarnwick",
                                   "shared set askActionFromTarnwick", "post askActionFromTarnwick 3"}));
}

TEST_F(FinderExtensionTest, TwoRestartRequestsPostTwice) {
    controller_.restartFinderClick();
    controller_.restartFinderClick();
    EXPECT_EQ(platform_.log.linesWith("post ").size(), 2U);
    EXPECT_EQ(platform_.log.linesWith("shared set ").size(), 2U);
}

TEST_F(FinderExtensionTest, TheHelpActionsOpenTheirPages) {
    controller_.initializeClick();
    controller_.helpServicesOfSystemPreferences();
    const auto opened = platform_.log.linesWith("open URL https://");
    ASSERT_EQ(opened.size(), 2U);
    EXPECT_NE(opened[0].find("restart-finder"), std::string::npos);
    EXPECT_NE(opened[1].find("services"), std::string::npos);
}

TEST_F(FinderExtensionTest, TheHarmlessActionChangesNothing) {
    controller_.openServiceOfSystemPreferences();
    controller_.appChanged();
    EXPECT_TRUE(platform_.log.lines().empty());
}

} // namespace
} // namespace tarnwick::testing
