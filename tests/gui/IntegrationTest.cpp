#include "tests/gui/Driver.h"
#include "tests/gui/Foreign.h"
#include "tests/gui/Input.h"
#include "tests/gui/Panels.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

namespace tarnwick::gui {
namespace {

std::string contentsOf(const std::string& path) {
    std::ostringstream contents;
    contents << std::ifstream(path).rdbuf();
    return contents.str();
}

TEST(Integration, ASecondProcessReceivesTheRestartRequestAndFindsItInTheSuite) {
    const auto heard = sandboxFolder() + "/heard";
    ASSERT_EQ(
        std::system((std::string(TARNWICK_REQUEST_LISTENER) + " >" + heard + " 2>/dev/null &").c_str()), 0);
    ASSERT_TRUE(waitUntil([&] { return contentsOf(heard) == "ready\n"; }));
    sendAction("restartFinderClick:");
    ASSERT_TRUE(waitUntil([&] { return contentsOf(heard).size() > 6; }));
    EXPECT_EQ(contentsOf(heard), "ready\naskActionFromTarnwick: restartFinder\n");
    EXPECT_EQ(shared("d['askActionFromTarnwick']"), "{'ActionType': 'restartFinder'}");
}

TEST(Integration, HelpOpensItsPageInTheBrowser) {
    clickButton("Help");
    const auto opened = sandboxFolder() + "/opened";
    ASSERT_TRUE(waitUntil([&] { return !contentsOf(opened).empty(); }));
    EXPECT_NE(contentsOf(opened).find("help/restart-finder.html"), std::string::npos);
}

TEST(Integration, AStorePageOpensFromThePageOfFurtherApps) {
    clickPageButton(Page::moreApps);
    clickButton("Visit");
    const auto opened = sandboxFolder() + "/opened";
    EXPECT_TRUE(
        waitUntil([&] { return contentsOf(opened).find("halvane.example/\n") != std::string::npos; }));
}

TEST(Integration, ConfirmingTheScriptFolderInstallsTheScript) {
    const auto scripts = sandboxFolder() + "/library/Application Scripts";
    chooseInNextPanel(scripts + "/org.halvane.Tarnwick");
    sendAction("doInstallScript");
    EXPECT_TRUE(waitUntil([&] {
        return contentsOf(scripts + "/org.halvane.Tarnwick/applescript.scpt").find("initialize") !=
               std::string::npos;
    }));
}

TEST(Integration, CancellingTheInitializeAlertKeepsEverything) {
    pressInNextPanel("Cancel");
    sendAction("initialize");
    EXPECT_EQ(lastAlertText(), "Warning");
    EXPECT_GE(lastAlertMargin(), 16);
    EXPECT_EQ(shared("len(d['arrOfOthers'])"), "18");
}

TEST(Integration, TheInstalledScriptInitializesAllSettings) {
    ASSERT_NE(containerFolder("Templates/CreateNewFile").find("TXT.txt"), std::string::npos);
    pressInNextPanel("OK");
    sendAction("initialize");
    EXPECT_TRUE(waitUntil([&] { return local("d") == "(no file)" && shared("d") == "(no file)"; }))
        << "local: " << local("d") << "\nshared: " << shared("d");
    // Nothing was left to be written that would bring them back.
    becomeActive();
    EXPECT_EQ(local("d"), "(no file)");
    EXPECT_EQ(containerFolder("Templates").find("CreateNewFile"), std::string::npos);
}

TEST(Integration, ThePanelAboutTheApplicationSaysWhatItIsAndNothingElse) {
    EXPECT_EQ(
        textsOfAboutPanel(), (std::vector<std::string>{"Tarnwick", std::string("Version ") + TARNWICK_VERSION,
                                 "Copyright 2026 the makers of Tarnwick"}));
}

} // namespace
} // namespace tarnwick::gui
