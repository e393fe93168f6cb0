#include "Probe.h"

#include <gtest/gtest.h>

using namespace tarnwick::probe;

TEST(Block, RetainsCapturedObjectsUntilItIsReleased) {
    const auto result = captureInCopiedBlock();
    EXPECT_TRUE(result.aliveWhileBlockLives);
    EXPECT_TRUE(result.freedWithBlock);
}

TEST(Block, SharesBlockVariablesWithItsFrame) {
    EXPECT_EQ(sumInBlockVariable(5), 5);
}

TEST(Block, LivesInAnArrayLikeAnObject) {
    EXPECT_EQ(resultsOfStoredBlocks(4), (std::vector<int>{0, 1, 4, 9}));
}
