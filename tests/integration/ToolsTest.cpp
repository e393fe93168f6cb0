#include "tests/support/IntegrationFixture.h"
#include "values/Utf8.h"

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
}

TEST_F(ToolsTest, TheShortcutChooserOpensAtTheSystemsFileByItsURLText) {
    integration_.tools.chooseSystemShortcuts();
    OpenPanelRequest expected;
    expected.startFolder = "/Users/anna/Library/Preferences/com.apple.symbolichotkeys.plist";
    expected.startFolderIsURLText = true;
    expected.allowedFileTypes = {"plist"};
    EXPECT_EQ(platform_.panels.requests.back(), expected);
}

TEST_F(ToolsTest, ChoosingAShortcutFileLogsItsPathAndParsesIt) {
    integration_.tools.chooseSystemShortcuts();
    platform_.log.clear();
    platform_.panels.confirm({"/x/keys.plist"});
    EXPECT_EQ(platform_.log.lines(), (std::vector<std::string>{"log /x/keys.plist", "parse /x/keys.plist"}));
}

TEST_F(ToolsTest, CancellingTheShortcutChooserDoesNothing) {
    integration_.tools.chooseSystemShortcuts();
    platform_.log.clear();
    platform_.panels.cancel();
    EXPECT_TRUE(platform_.log.lines().empty());
}

TEST(Utf8Test, AcceptsWellFormedTextOfEveryLength) {
    for (const auto* text :
        {"", "plain", "\u00FC", "\u3001", "\U0001F600", "\u007F\u0080\u07FF\u0800\uFFFF\U0010FFFF"}) {
        EXPECT_TRUE(isValidUtf8(text)) << text;
    }
    EXPECT_TRUE(isValidUtf8(std::string_view("a\0b", 3)));
}

TEST(Utf8Test, RefusesMalformedBytes) {
    for (const auto* text :
        {"\x80", "\xC0\x80", "\xC1\xBF", "\xC3", "\xE0\x80\x80", "\xED\xA0\x80", "\xF0\x80\x80\x80",
            "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xE3\x80", "\xE3\x80\x28", "ok\xFF"}) {
        EXPECT_FALSE(isValidUtf8(text)) << text;
    }
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
