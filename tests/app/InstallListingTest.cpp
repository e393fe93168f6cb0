#include "app/ApplicationIdentity.h"
#include "app/InstallGuard.h"
#include "prefs/PreferenceKeys.h"
#include "tests/support/InMemoryPlatform.h"

#include <gtest/gtest.h>

namespace tarnwick::testing {
namespace {

const std::string accepted{installationPath};
const std::string developerBuild =
    TARNWICK_DEVELOPER_BUILD_PREFIX "DerivedData/Tarnwick/Build/Products/Debug/Tarnwick.app";

/// Which copies the guard counts, and how it lists them.
class InstallListingTest : public ::testing::Test {
protected:
    void install(std::vector<std::string> copies, const std::string& preferred = "") {
        platform_.workspace.registered[identifier_] = {std::move(copies), false};
        if (!preferred.empty()) {
            platform_.workspace.applications[identifier_] = preferred;
        }
    }
    [[nodiscard]] std::optional<std::string> conflict() { return guard_.findConflict(); }

    InMemoryPlatform platform_;
    InstallGuard guard_{platform_.workspace, platform_.bundle, platform_.panels, platform_.process};
    const std::string identifier_{applicationIdentifier};
};

TEST_F(InstallListingTest, APreferredCopyInTheRightPlaceIsAcceptedWhateverTheOnlyRegisteredPath) {
    install({"/Users/anna/Applications/Tarnwick.app"}, accepted);
    EXPECT_EQ(conflict(), std::nullopt);
}

TEST_F(InstallListingTest, TheOnlyCopyInTheRightPlaceIsAcceptedWhenAnotherOneOrNoneIsPreferred) {
    install({accepted});
    EXPECT_EQ(conflict(), std::nullopt);
    install({accepted}, "/Volumes/Backup/Tarnwick.app");
    EXPECT_EQ(conflict(), std::nullopt);
}

TEST_F(InstallListingTest, PathsThatOnlyLookLikeTheAcceptedOneAreRefused) {
    for (const auto* path : {"/applications/Tarnwick.app", "/Applications/Tarnwick 2.app",
             "/Applications/Utilities/Tarnwick.app"}) {
        install({path}, path);
        EXPECT_EQ(conflict(), "\n" + std::string(path) + "\n\n");
    }
}

TEST_F(InstallListingTest, PathsThatOnlyLookLikeMountedVolumesCount) {
    install({"/VolumesOfMine/Tarnwick.app", "/Users/anna/Volumes/Tarnwick.app", "/volumes/Tarnwick.app"});
    EXPECT_EQ(conflict(),
        "\n/VolumesOfMine/Tarnwick.app\n\n/Users/anna/Volumes/Tarnwick.app\n\n/volumes/Tarnwick.app\n\n");
}

TEST_F(InstallListingTest, BuildsBelowTheDeveloperBuildPrefixDoNotCount) {
    install({developerBuild, accepted}, developerBuild);
    EXPECT_EQ(conflict(), std::nullopt);
}

TEST_F(InstallListingTest, BuildsElsewhereCount) {
    install({"/elsewhere" + developerBuild});
    EXPECT_EQ(conflict(), "\n/elsewhere" + developerBuild + "\n\n");
}

TEST_F(InstallListingTest, TheListingKeepsTheRegistersOrderAndLeavesOutOnlyWhatDoesNotCount) {
    install({"/opt/Tarnwick.app", "/Volumes/A/Tarnwick.app", accepted, developerBuild, "/a/Tarnwick.app"});
    EXPECT_EQ(conflict(), "\n/opt/Tarnwick.app\n\n/Applications/Tarnwick.app\n\n/a/Tarnwick.app\n\n");
}

TEST_F(InstallListingTest, TheAcceptedCopyRegisteredTwiceIsRefused) {
    install({accepted, accepted}, accepted);
    EXPECT_EQ(conflict(), "\n/Applications/Tarnwick.app\n\n/Applications/Tarnwick.app\n\n");
}

TEST_F(InstallListingTest, AnErrorOfTheRegisterIsNotLookedAt) {
    install({"/opt/Tarnwick.app"});
    platform_.workspace.registered[identifier_].failed = true;
    EXPECT_EQ(conflict(), "\n/opt/Tarnwick.app\n\n");
}

TEST_F(InstallListingTest, CopiesOfOtherApplicationsAreNotAskedFor) {
    platform_.workspace.registered["org.halvane.Allbright"] = {
        {"/a/Allbright.app", "/b/Allbright.app"}, false};
    EXPECT_EQ(conflict(), std::nullopt);
}

TEST_F(InstallListingTest, BothSentencesOfTheAlertAreLocalised) {
    platform_.bundle.texts = {{"In order to ensure the stability of Tarnwick, only one Tarnwick can be "
                               "installed on your computer, and it "
                               "can only be installed in the application of the system!",
                                  "Nur eines."},
        {"The current installation paths are:", "Gefunden:"}};
    install({"/a/Tarnwick.app"}, "/a/Tarnwick.app");
    EXPECT_FALSE(guard_.run());
    ASSERT_EQ(platform_.panels.alerts.size(), 1U);
    EXPECT_EQ(platform_.panels.alerts[0].informativeText, "Nur eines.\nGefunden:\n\n/a/Tarnwick.app\n\n");
}

} // namespace
} // namespace tarnwick::testing
