#include "tests/support/IntegrationFixture.h"

namespace tarnwick::testing {
namespace {

class RestartRequestTest : public IntegrationFixture {};

TEST_F(RestartRequestTest, ARestartRequestIsStoredWithoutSynchronisingAndThenPosted) {
    integration_.restartRequest.send();
    EXPECT_EQ(shared("askActionFromTarnwick"), PlistValue(PlistDictionary{{"ActionType", "restartFinder"}}));
    EXPECT_EQ(
        platform_.log.lines(), (std::vector<std::string>{"shared open H7Q2ZK5RX9.org.halvane.Tarnwick",
                                   "shared set askActionFromTarnwick", "post askActionFromTarnwick 3"}));
}

TEST_F(RestartRequestTest, TwoRestartRequestsPostTwice) {
    integration_.restartRequest.send();
    integration_.restartRequest.send();
    EXPECT_EQ(platform_.log.linesWith("post ").size(), 2U);
    EXPECT_EQ(platform_.log.linesWith("shared set ").size(), 2U);
}

TEST_F(RestartRequestTest, ARestartRequestStaysStoredAndIsOverwrittenByTheNext) {
    platform_.preferences.shared.insert_or_assign(
        "askActionFromTarnwick", PlistValue(PlistDictionary{{"ActionType", "older"}, {"more", 1}}));
    integration_.restartRequest.send();
    EXPECT_EQ(shared("askActionFromTarnwick"), PlistValue(PlistDictionary{{"ActionType", "restartFinder"}}));
    EXPECT_FALSE(platform_.log.holds("shared synchronise"));
}

} // namespace
} // namespace tarnwick::testing
