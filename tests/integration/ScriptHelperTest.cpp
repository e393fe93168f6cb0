#include "tests/support/IntegrationFixture.h"

namespace tarnwick::testing {
namespace {

constexpr const char* noTaskLine =
    "log -[SettingsViewController repairScriptTask] no AppleScript task error = no such file";

class ScriptHelperTest : public IntegrationFixture {
protected:
    ScriptHelperTest() { platform_.files.files["/resources/applescript.scpt"] = "script"; }
    void install() { platform_.userScripts.installed.insert("/scripts/applescript.scpt"); }
    void installThroughPanel(const std::string& folder) {
        integration_.scriptHelper.doInstallScript();
        platform_.log.clear();
        platform_.panels.confirm({folder});
    }
};

TEST_F(ScriptHelperTest, TheInstallPanelOpensOnTheScriptFolderForFoldersAlone) {
    platform_.bundle.texts["OK"] = "Gut";
    integration_.scriptHelper.doInstallScript();
    OpenPanelRequest expected;
    expected.canChooseFiles = false;
    expected.canChooseDirectories = true;
    expected.startFolder = "/scripts";
    expected.prompt = "Gut";
    expected.message = "The script helper goes into this folder: confirm it as it is.";
    EXPECT_EQ(platform_.panels.requests.back(), expected);
}

TEST_F(ScriptHelperTest, ConfirmingTheFolderLogsTheSourceAndCopiesTheScript) {
    EXPECT_FALSE(integration_.scriptHelper.checkScriptInstalled());
    installThroughPanel("/scripts");
    EXPECT_EQ(platform_.log.lines(), (std::vector<std::string>{"log /resources/applescript.scpt",
                                         "copy /resources/applescript.scpt -> /scripts/applescript.scpt"}));
    EXPECT_TRUE(integration_.scriptHelper.checkScriptInstalled());
}

TEST_F(ScriptHelperTest, AnInstalledScriptIsNeverOverwritten) {
    platform_.files.files["/scripts/applescript.scpt"] = "old";
    installThroughPanel("/scripts");
    EXPECT_EQ(platform_.files.files["/scripts/applescript.scpt"], "old");
    EXPECT_EQ(platform_.log.lines(), std::vector<std::string>{"log /resources/applescript.scpt"});
}

TEST_F(ScriptHelperTest, AnyOtherFolderInstallsNothing) {
    for (const auto* folder : {"/scripts/inner", "/", "/scripts/"}) {
        installThroughPanel(folder);
        EXPECT_TRUE(platform_.log.lines().empty()) << folder;
    }
}

TEST_F(ScriptHelperTest, CancellingTheInstallPanelDoesNothing) {
    integration_.scriptHelper.doInstallScript();
    platform_.log.clear();
    platform_.panels.cancel();
    EXPECT_TRUE(platform_.log.lines().empty());
}

TEST_F(ScriptHelperTest, AFailedCopyIsSilentAndNoFollowUpRuns) {
    platform_.files.failing.insert("/scripts/applescript.scpt");
    install();
    installThroughPanel("/scripts");
    EXPECT_TRUE(platform_.userScripts.events.empty());
    EXPECT_FALSE(integration_.scriptHelper.checkScriptInstalled());
}

TEST_F(ScriptHelperTest, ASuccessfulInstallRunsNoFollowUpEither) {
    install();
    installThroughPanel("/scripts");
    platform_.runLoop.runMain();
    EXPECT_TRUE(platform_.userScripts.events.empty());
}

TEST_F(ScriptHelperTest, WithoutAScriptFolderNothingIsInstalledWhateverIsChosen) {
    platform_.folders.scripts = {std::nullopt, "denied"};
    integration_.scriptHelper.doInstallScript();
    EXPECT_EQ(platform_.panels.requests.back().startFolder, std::nullopt);
    platform_.log.clear();
    platform_.panels.confirm({"/scripts"});
    EXPECT_TRUE(platform_.log.lines().empty());
    EXPECT_FALSE(integration_.scriptHelper.checkScriptInstalled());
}

TEST_F(ScriptHelperTest, WithoutAScriptEveryCallLogsOnceAndDoesNothingElse) {
    integration_.scriptHelper.restartFinder();
    EXPECT_EQ(platform_.log.lines(), std::vector<std::string>{noTaskLine});
    platform_.log.clear();
    integration_.scriptHelper.openServicesOfSystemPreferences();
    platform_.runLoop.runMain();
    EXPECT_EQ(platform_.log.lines(), (std::vector<std::string>{"queue on main", noTaskLine}));
    platform_.log.clear();
    integration_.scriptHelper.initialize();
    EXPECT_EQ(platform_.log.lines(), (std::vector<std::string>{"alert Warning", noTaskLine}));
}

TEST_F(ScriptHelperTest, WithoutAScriptFolderTheFailureIsLoggedWithItsError) {
    platform_.folders.scripts = {std::nullopt, "denied"};
    integration_.scriptHelper.restartFinder();
    EXPECT_EQ(platform_.systemLog.lines,
        std::vector<std::string>{
            "-[SettingsViewController repairScriptTask] no Application Scripts folder error = denied"});
}

TEST_F(ScriptHelperTest, TheHandlersAreCalledByName) {
    install();
    integration_.scriptHelper.restartFinder();
    integration_.scriptHelper.openServicesOfSystemPreferences();
    EXPECT_EQ(platform_.userScripts.events.size(), 1U);
    platform_.runLoop.runMain();
    integration_.scriptHelper.initialize();
    EXPECT_EQ(platform_.log.linesWith("execute "),
        (std::vector<std::string>{"execute restartFinder", "execute openServices", "execute initialize"}));
}

TEST_F(ScriptHelperTest, TheEventCallsTheHandlerInTheCurrentProcess) {
    const auto event = restartFinderEventDescriptor("restartFinder");
    EXPECT_EQ(event.eventClass, 0x61736372U);
    EXPECT_EQ(event.eventIdentifier, 0x70736272U);
    EXPECT_EQ(event.targetType, 0x70736E20U);
    EXPECT_EQ(event.targetBytes, (std::array<std::uint8_t, 8>{0, 0, 0, 0, 2, 0, 0, 0}));
    EXPECT_EQ(event.returnIdentifier, -1);
    EXPECT_EQ(event.transactionIdentifier, 0);
    EXPECT_EQ(event.parameterKeyword, 0x736E616DU);
    EXPECT_EQ(event.parameterText, "restartFinder");
}

TEST_F(ScriptHelperTest, InitializingAsksFirstWithItsExactText) {
    platform_.panels.answers = {1001};
    install();
    integration_.scriptHelper.initialize();
    const AlertRequest expected{.messageText = "Warning",
        .informativeText =
            "All setting parameters will be deleted !\n\nIf it is still abnormal after initialization, "
            "delete all Tarnwick on the computer, restart the computer, go to the App Store to "
            "download, install.",
        .buttons = {"OK", "Cancel"}};
    EXPECT_EQ(platform_.panels.alerts.front(), expected);
    EXPECT_TRUE(platform_.userScripts.events.empty());
}

TEST_F(ScriptHelperTest, CancellingTheInitializeAlertChangesNothing) {
    load();
    const auto localBefore = platform_.preferences.local;
    const auto filesBefore = platform_.files.files;
    platform_.panels.answers = {1001};
    integration_.scriptHelper.initialize();
    EXPECT_EQ(platform_.preferences.local, localBefore);
    EXPECT_EQ(platform_.files.files, filesBefore);
}

TEST_F(ScriptHelperTest, InitializingItselfRemovesNoKeyAndNoFile) {
    load();
    install();
    const auto localBefore = platform_.preferences.local;
    const auto filesBefore = platform_.files.files;
    integration_.scriptHelper.initialize();
    EXPECT_EQ(platform_.preferences.local, localBefore);
    EXPECT_EQ(platform_.files.files, filesBefore);
    EXPECT_EQ(platform_.userScripts.events.size(), 1U);
}

} // namespace
} // namespace tarnwick::testing
