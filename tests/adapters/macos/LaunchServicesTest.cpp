#include "StandInTest.h"

namespace tarnwick::standins {
namespace {

class LaunchServicesTest : public StandInTest {
protected:
    static RegisteredApplications ask() {
        RegisteredApplications result;
        inPool([&result] { result = registeredApplications("org.halvane.Tarnwick"); });
        return result;
    }
};

TEST_F(LaunchServicesTest, AsksOnceForTheIdentifier) {
    ask();
    EXPECT_EQ(calls(), Calls{"LSCopyApplicationURLsForBundleIdentifier(org.halvane.Tarnwick)"});
}

TEST_F(LaunchServicesTest, GivesThePathsInTheSystemsOrder) {
    answers().registeredCopies = {{"/Volumes/Disk/Tarnwick.app", "/Applications/Tarnwick.app"}};
    const auto result = ask();
    EXPECT_EQ(
        result.paths, (std::vector<std::string>{"/Volumes/Disk/Tarnwick.app", "/Applications/Tarnwick.app"}));
    EXPECT_FALSE(result.failed);
}

TEST_F(LaunchServicesTest, NoAnswerIsNoCopies) {
    const auto result = ask();
    EXPECT_TRUE(result.paths.empty());
    EXPECT_FALSE(result.failed);
}

TEST_F(LaunchServicesTest, AnErrorWithoutAnAnswerIsReportedAndFreed) {
    answers().launchServicesFail = true;
    const auto result = ask();
    EXPECT_TRUE(result.paths.empty());
    EXPECT_TRUE(result.failed);
}

TEST_F(LaunchServicesTest, AnErrorBesideAnAnswerIsReportedAndBothAreFreed) {
    answers().launchServicesFail = true;
    answers().registeredCopies = {{"/Applications/Tarnwick.app"}};
    const auto result = ask();
    EXPECT_EQ(result.paths.size(), 1U);
    EXPECT_TRUE(result.failed);
}

} // namespace
} // namespace tarnwick::standins
