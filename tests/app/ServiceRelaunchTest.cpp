#include "app/ServiceRelaunch.h"

#include "tests/support/InMemoryPlatform.h"

#include <gtest/gtest.h>

namespace tarnwick::testing {
namespace {

class ServiceRelaunchTest : public ::testing::Test {
protected:
    InMemoryPlatform platform_;
    ServiceRelaunch relaunch_{platform_.workspace, platform_.bundle, platform_.runLoop};
};

TEST_F(ServiceRelaunchTest, NothingHappensOnTheMainThread) {
    relaunch_.run();
    platform_.runLoop.runMain();
    EXPECT_EQ(platform_.log.lines(), (std::vector<std::string>{"queue in background"}));
}

TEST_F(ServiceRelaunchTest, InTheBackgroundTheRunningCopiesAreTerminatedAndThenThePluggedInOneIsLaunched) {
    relaunch_.run();
    platform_.log.clear();
    platform_.runLoop.runBackground();
    const std::vector<std::string> expected{
        "terminate org.halvane.Tarnwick.TarnwickService", "launch /app/PlugIns/TarnwickService.service"};
    EXPECT_EQ(platform_.log.lines(), expected);
}

} // namespace
} // namespace tarnwick::testing
