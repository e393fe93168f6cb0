#pragma once

#include "adapters/foundation/SystemAdapters.h"
#include "standins/Recording.h"

#include <gtest/gtest.h>

namespace tarnwick::standins {

/// Begins with nothing recorded, and ends with every object that was made freed.
class StandInTest : public testing::Test {
protected:
    void SetUp() override {
        reset();
        livingBefore_ = livingObjects();
    }
    void TearDown() override {
        drainQueues();
        EXPECT_EQ(livingObjects(), livingBefore_) << "objects leaked or freed too often";
    }

    using Calls = std::vector<std::string>;

private:
    int livingBefore_ = 0;
};

} // namespace tarnwick::standins
