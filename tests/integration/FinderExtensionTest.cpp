#include "tests/support/IntegrationFixture.h"

namespace tarnwick::testing {
namespace {

class FinderExtensionTest : public IntegrationFixture {
protected:
    void useSystem(int major, int minor) {
        platform_.process.major = major;
        platform_.process.minor = minor;
    }
    void start() {
        preferences_.local.open(platform_.preferences);
        integration_.finderExtension.checkAtStart();
        platform_.runLoop.runMain();
    }
};

TEST_F(FinderExtensionTest, ThePromptHasItsTextsAndOneButton) {
    start();
    const AlertRequest expected{.messageText = "Enable Extension",
        .informativeText = "The Tarnwick Finder extension must be enabled in System Preferences",
        .buttons = {"Open System Preferences"}};
    EXPECT_EQ(platform_.panels.alerts.front(), expected);
}

TEST_F(FinderExtensionTest, ThePromptsTextsAreNotLocalised) {
    platform_.bundle.texts["Enable Extension"] = "Erweiterung aktivieren";
    start();
    EXPECT_EQ(platform_.panels.alerts.front().messageText, "Enable Extension");
}

TEST_F(FinderExtensionTest, BeforeTheManagementScreenExistedTheExtensionCountsAsEnabledWithoutAsking) {
    useSystem(10, 13);
    platform_.bundle.extensionEnabled = false;
    EXPECT_TRUE(integration_.finderExtension.isExtensionEnabled());
    EXPECT_FALSE(platform_.log.holds("ask whether the extension is enabled"));
}

TEST_F(FinderExtensionTest, FromMojaveOnTheSystemIsAsked) {
    useSystem(10, 14);
    platform_.bundle.extensionEnabled = false;
    EXPECT_FALSE(integration_.finderExtension.isExtensionEnabled());
    platform_.bundle.extensionEnabled = true;
    EXPECT_TRUE(integration_.finderExtension.isExtensionEnabled());
}

TEST_F(FinderExtensionTest, OlderSystemsOpenTheSystemSettingsAtTheirTopLevel) {
    useSystem(10, 13);
    integration_.finderExtension.openSystemPreferences();
    EXPECT_EQ(platform_.log.lines(), std::vector<std::string>{"open URL x-apple.systempreferences://"});
}

TEST_F(FinderExtensionTest, NewerSystemsShowTheManagementScreen) {
    useSystem(10, 14);
    integration_.finderExtension.openSystemPreferences();
    EXPECT_EQ(platform_.log.lines(), std::vector<std::string>{"show extension management"});
}

} // namespace
} // namespace tarnwick::testing
