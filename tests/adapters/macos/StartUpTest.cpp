#include "StandInTest.h"

namespace tarnwick::standins {
namespace {

class StartUpTest : public StandInTest {};

TEST_F(StartUpTest, PreparingTheProcessAsksNothingOfTheSystem) {
    char name[] = "Tarnwick";
    char* arguments[] = {name, nullptr};
    inPool([&arguments] { prepareProcess(1, arguments); });
    EXPECT_TRUE(calls().empty());
    EXPECT_STREQ(arguments[0], "Tarnwick");
}

} // namespace
} // namespace tarnwick::standins
