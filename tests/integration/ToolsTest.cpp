#include "integration/Links.h"
#include "tests/support/IntegrationFixture.h"

namespace tarnwick::testing {
namespace {

class ToolsTest : public IntegrationFixture {};

TEST_F(ToolsTest, ACommandRunsInTheShellAndGivesItsOutputAsText) {
    platform_.process.answer = "hello\n";
    EXPECT_EQ(integration_.tools.runCommand("echo hello"), "hello\n");
    ASSERT_EQ(platform_.process.runs.size(), 1U);
    EXPECT_EQ(platform_.process.runs[0].first, "/bin/sh");
    EXPECT_EQ(platform_.process.runs[0].second, (std::vector<std::string>{"-c", "echo hello"}));
}

TEST_F(ToolsTest, ACommandWithoutOutputGivesEmptyText) {
    EXPECT_EQ(integration_.tools.runCommand("true"), "");
}

TEST_F(ToolsTest, OutputThatIsNoTextGivesNone) {
    platform_.process.answer = "\xFF\xFE";
    EXPECT_EQ(integration_.tools.runCommand("cat picture"), std::nullopt);
}

TEST_F(ToolsTest, AnApplicationIsInstalledWhenACopyIsRegistered) {
    EXPECT_FALSE(integration_.tools.isInstalled("org.example.Nobody"));
    platform_.workspace.registered["org.example.Somebody"] = {{"/Applications/Somebody.app"}, false};
    EXPECT_TRUE(integration_.tools.isInstalled("org.example.Somebody"));
    platform_.workspace.registered["org.example.Somebody"].failed = true;
    EXPECT_FALSE(integration_.tools.isInstalled("org.example.Somebody"));
    platform_.workspace.registered["org.example.Nobody"] = {{}, true};
    EXPECT_FALSE(integration_.tools.isInstalled("org.example.Nobody"));
}

TEST_F(ToolsTest, TheShortcutChooserOpensAtTheSystemsFileByItsURLText) {
    integration_.tools.chooseSystemShortcuts();
    OpenPanelRequest expected;
    expected.startFolder = "/Users/anna/Library/Preferences/com.apple.symbolichotkeys.plist";
    expected.startFolderIsURLText = true;
    expected.allowedFileTypes = {"plist"};
    EXPECT_EQ(platform_.panels.requests.back(), expected);
}

TEST_F(ToolsTest, SeveralShortcutFilesAreLoggedAndParsedOneAfterTheOtherEvenUnreadableOnes) {
    platform_.contents.putList("/b.plist", PlistValue(PlistDictionary{}));
    integration_.tools.chooseSystemShortcuts();
    platform_.log.clear();
    platform_.panels.confirm({"/a.plist", "/b.plist"});
    EXPECT_EQ(platform_.log.lines(),
        (std::vector<std::string>{"log /a.plist", "parse /a.plist", "log /b.plist", "parse /b.plist"}));
}

TEST_F(ToolsTest, TheHelpActionsOpenTheirExactAddresses) {
    integration_.tools.openLink(link::helpRestartFinder);
    integration_.tools.openLink(link::helpServices);
    EXPECT_EQ(platform_.log.lines(),
        (std::vector<std::string>{"open URL https://tarnwick.halvane.example/help/restart-finder.html",
            "open URL https://tarnwick.halvane.example/help/services.html"}));
}

TEST_F(ToolsTest, CancellingTheShortcutChooserDoesNothing) {
    integration_.tools.chooseSystemShortcuts();
    platform_.log.clear();
    platform_.panels.cancel();
    EXPECT_TRUE(platform_.log.lines().empty());
}

TEST_F(ToolsTest, OneWrongByteAnywhereLosesTheWholeOutput) {
    for (const std::string output : {"\xFFok\n", "o\xFFk\n", "ok\n\xFF"}) {
        platform_.process.answer = output;
        EXPECT_EQ(integration_.tools.runCommand("cat"), std::nullopt);
    }
}

TEST_F(ToolsTest, OutputKeepsItsZeroBytesAndItsLineBreaks) {
    platform_.process.answer = std::string("a\0b\r\n\u3001", 8);
    EXPECT_EQ(integration_.tools.runCommand("cat"), platform_.process.answer);
}

} // namespace
} // namespace tarnwick::testing
