#include "app/ServiceRelaunch.h"

#include "tests/support/InMemoryPlatform.h"

#include <gtest/gtest.h>

namespace tarnwick::testing {
namespace {

class ServiceRelaunchTest : public ::testing::Test {
protected:
    InMemoryPlatform platform_;
};

TEST_F(ServiceRelaunchTest, NothingHappensOnTheMainThread) {
    relaunchService(platform_.ports());
    platform_.runLoop.runMain();
    EXPECT_EQ(platform_.log.lines(), (std::vector<std::string>{"queue in background"}));
}

TEST_F(ServiceRelaunchTest, InTheBackgroundTheRunningCopiesAreTerminatedAndThenThePluggedInOneIsLaunched) {
    relaunchService(platform_.ports());
    platform_.log.clear();
    platform_.runLoop.runBackground();
    const std::vector<std::string> expected{
        "terminate org.halvane.Tarnwick.TarnwickService", "launch /app/PlugIns/TarnwickService.service"};
    EXPECT_EQ(platform_.log.lines(), expected);
}

} // namespace
} // namespace tarnwick::testing
