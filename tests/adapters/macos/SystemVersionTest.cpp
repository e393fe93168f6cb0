#include "StandInTest.h"

namespace tarnwick::standins {
namespace {

class SystemVersionTest : public StandInTest {};

TEST_F(SystemVersionTest, PassesMajorMinorAndPatchInOrder) {
    EXPECT_FALSE(isSystemAtLeast(10, 14, 2));
    EXPECT_EQ(calls(), Calls{"isOperatingSystemAtLeastVersion(10.14.2)"});
}

TEST_F(SystemVersionTest, ThatVersionItselfAndLaterOnesAreEnough) {
    answers().systemVersion[1] = 15;
    EXPECT_TRUE(isSystemAtLeast(10, 15, 0));
    EXPECT_FALSE(isSystemAtLeast(10, 15, 1));
    answers().systemVersion[0] = 11;
    answers().systemVersion[1] = 0;
    EXPECT_TRUE(isSystemAtLeast(10, 15, 0));
}

} // namespace
} // namespace tarnwick::standins
