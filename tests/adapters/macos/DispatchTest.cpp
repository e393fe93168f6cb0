#include "StandInTest.h"

#include "platform/RunLoop.h"

namespace tarnwick::standins {
namespace {

class DispatchTest : public StandInTest {
protected:
    std::vector<int> done;
};

TEST_F(DispatchTest, WorkForTheMainQueueRunsLaterAndInOrder) {
    inPool([this] {
        const auto runLoop = makeRunLoop();
        runLoop->performOnMainQueue([this] { done.push_back(1); });
        runLoop->performOnMainQueue([this] { done.push_back(2); });
    });
    EXPECT_TRUE(done.empty());
    drainQueues();
    EXPECT_EQ(done, (std::vector<int>{1, 2}));
    EXPECT_EQ(calls(), (Calls{"dispatch_async(main)", "dispatch_async(main)"}));
}

TEST_F(DispatchTest, BackgroundWorkGoesToTheGlobalQueueOfDefaultPriority) {
    inPool([this] { makeRunLoop()->performInBackground([this] { done.push_back(1); }); });
    EXPECT_EQ(calls(), (Calls{"dispatch_get_global_queue(0, 0)", "dispatch_async(global)"}));
    drainQueues();
    EXPECT_EQ(done, std::vector<int>{1});
}

TEST_F(DispatchTest, WhatTheWorkHoldsLivesUntilItHasRunAndNoLonger) {
    auto held = std::make_shared<int>(0);
    inPool([held] { makeRunLoop()->performOnMainQueue([held] { ++*held; }); });
    EXPECT_EQ(held.use_count(), 2);
    drainQueues();
    EXPECT_EQ(*held, 1);
    EXPECT_EQ(held.use_count(), 1);
}

TEST_F(DispatchTest, DelayedWorkRunsOnceOnTheRunLoopAndIsFreed) {
    auto held = std::make_shared<int>(0);
    inPool([held] { makeRunLoop()->performAfterDelay(0.01, [held] { ++*held; }); });
    EXPECT_EQ(*held, 0);
    EXPECT_TRUE(runUntil([&held] { return held.use_count() == 1; }));
    EXPECT_EQ(*held, 1);
    EXPECT_TRUE(calls().empty());
}

} // namespace
} // namespace tarnwick::standins
