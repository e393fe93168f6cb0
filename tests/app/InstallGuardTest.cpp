#include "app/InstallGuard.h"
#include "app/ApplicationDelegate.h"
#include "tests/support/InMemoryPlatform.h"
#include "tests/support/InMemoryWindow.h"

#include <gtest/gtest.h>

namespace tarnwick::testing {
namespace {

class InstallGuardTest : public ::testing::Test {
protected:
    void install(std::vector<std::string> paths, std::string preferred = "") {
        platform_.workspace.registered["org.halvane.Tarnwick"] = {std::move(paths), false};
        if (!preferred.empty()) {
            platform_.workspace.applications["org.halvane.Tarnwick"] = std::move(preferred);
        }
    }
    void launch() { ApplicationDelegate(platform_.ports(), window_).applicationWillFinishLaunching(); }
    void expectAccepted() {
        launch();
        EXPECT_TRUE(platform_.panels.alerts.empty());
        EXPECT_TRUE(platform_.process.exits.empty());
        EXPECT_TRUE(platform_.log.holds("activate"));
    }
    void expectRefusedWith(const std::string& listing) {
        launch();
        ASSERT_EQ(platform_.panels.alerts.size(), 1U);
        const AlertRequest expected{.messageText = "Warning",
            .informativeText =
                "In order to ensure the stability of Tarnwick, only one Tarnwick can be installed on your "
                "computer, and it can only be installed in the application of the system!\n"
                "The current installation paths are:\n" +
                listing,
            .buttons = {"OK"}};
        EXPECT_EQ(platform_.panels.alerts.front(), expected);
        EXPECT_EQ(platform_.process.exits, std::vector<int>{0});
        EXPECT_EQ(platform_.log.lines(), (std::vector<std::string>{"alert Warning", "exit 0"}));
    }

    InMemoryPlatform platform_;
    InMemoryApplicationWindow window_{platform_.log};
};

const std::string accepted = "/Applications/Tarnwick.app";

TEST_F(InstallGuardTest, OneCopyInTheRightPlaceIsAcceptedAtOnce) {
    install({accepted}, accepted);
    expectAccepted();
}

TEST_F(InstallGuardTest, NoRegisteredCopyIsAccepted) {
    expectAccepted();
}

TEST_F(InstallGuardTest, OneCopyElsewhereIsRefusedAndListed) {
    install({"/Users/anna/Applications/Tarnwick.app"}, "/Users/anna/Applications/Tarnwick.app");
    expectRefusedWith("\n/Users/anna/Applications/Tarnwick.app\n\n");
}

TEST_F(InstallGuardTest, ACopyOnAMountedVolumeDoesNotCount) {
    install({accepted, "/Volumes/Tarnwick/Tarnwick.app"}, "/Volumes/Tarnwick/Tarnwick.app");
    expectAccepted();
}

TEST_F(InstallGuardTest, ADevelopersBuildDoesNotCount) {
    install({"/Users/developer/Library/Developer/Xcode/DerivedData/Tarnwick.app", accepted}, accepted);
    expectAccepted();
}

TEST_F(InstallGuardTest, OnlyIgnoredCopiesAreAccepted) {
    install({"/Volumes/Tarnwick/Tarnwick.app"}, "/Volumes/Tarnwick/Tarnwick.app");
    expectAccepted();
}

TEST_F(InstallGuardTest, TwoCopiesAreBothListedInThePlatformsOrder) {
    install({"/opt/Tarnwick.app", accepted}, accepted);
    expectRefusedWith("\n/opt/Tarnwick.app\n\n/Applications/Tarnwick.app\n\n");
}

TEST_F(InstallGuardTest, NoRegisteredCopyButAPreferredOneInTheRightPlaceIsAccepted) {
    install({}, accepted);
    expectAccepted();
}

TEST_F(InstallGuardTest, ThePathIsComparedExactly) {
    install({"/Applications/Tarnwick.app/"}, "/Applications/Tarnwick.app/");
    expectRefusedWith("\n/Applications/Tarnwick.app/\n\n");
}

TEST_F(InstallGuardTest, TheAlertIsLocalised) {
    platform_.bundle.texts["Warning"] = "Achtung";
    platform_.bundle.texts["OK"] = "Gut";
    install({"/opt/Tarnwick.app"});
    launch();
    EXPECT_EQ(platform_.panels.alerts.front().messageText, "Achtung");
    EXPECT_EQ(platform_.panels.alerts.front().buttons, std::vector<std::string>{"Gut"});
}

} // namespace
} // namespace tarnwick::testing
