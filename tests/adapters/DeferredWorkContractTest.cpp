#include "Contract.h"
#include "Waiting.h"

#include "adapters/foundation/SystemAdapters.h"
#include "platform/DistributedNotifications.h"
#include "platform/RunLoop.h"
#include "tests/support/InMemoryNotifications.h"
#include "tests/support/InMemoryRunLoop.h"

#include <atomic>
#include <ctime>
#include <regex>

namespace tarnwick::testing {
namespace {

class Loop {
public:
    explicit Loop(Implementation implementation) {
        if (implementation == Implementation::overThePlatform) {
            real_ = makeRunLoop();
        }
    }
    RunLoop& port() { return real_ ? *real_ : static_cast<RunLoop&>(memory_); }
    /// Until the condition holds.
    bool work(const std::function<bool()>& condition) {
        if (!real_) {
            memory_.runBackground();
            memory_.runMain();
        }
        return real_ ? runLoopUntil(condition) : condition();
    }

private:
    CallLog log_;
    InMemoryRunLoop memory_{log_};
    std::unique_ptr<RunLoop> real_;
};

using RunLoopContract = Contract<Loop>;

TEST_P(RunLoopContract, WorkForTheMainThreadRunsLaterAndInOrder) {
    std::string done;
    harness_.port().performOnMainQueue([&done] { done += "a"; });
    harness_.port().performOnMainQueue([&done] { done += "b"; });
    EXPECT_EQ(done, "");
    EXPECT_TRUE(harness_.work([&done] { return done.size() == 2; }));
    EXPECT_EQ(done, "ab");
}

TEST_P(RunLoopContract, DelayedWorkRunsOnceOnTheMainThread) {
    int runs = 0;
    bool onMain = false;
    harness_.port().performAfterDelay(0.01, [&] {
        ++runs;
        onMain = isMainThread();
    });
    EXPECT_EQ(runs, 0);
    EXPECT_TRUE(harness_.work([&runs] { return runs > 0; }));
    EXPECT_TRUE(onMain);
    bool later = false;
    harness_.port().performAfterDelay(0.02, [&later] { later = true; });
    EXPECT_TRUE(harness_.work([&later] { return later; }));
    EXPECT_EQ(runs, 1);
}

TEST_P(RunLoopContract, WorkQueuedByWorkRunsAfterIt) {
    std::string done;
    harness_.port().performOnMainQueue([&] {
        harness_.port().performOnMainQueue([&done] { done += "inner"; });
        done += "outer ";
    });
    EXPECT_TRUE(harness_.work([&done] { return done.size() > 6; }));
    EXPECT_EQ(done, "outer inner");
}

TEST_P(RunLoopContract, WorkInTheBackgroundIsDoneAndMayQueueMoreForTheMainThread) {
    std::atomic<bool> done = false;
    harness_.port().performInBackground(
        [&] { harness_.port().performOnMainQueue([&done] { done = isMainThread(); }); });
    EXPECT_TRUE(harness_.work([&done] { return done.load(); }));
}

TEST_P(RunLoopContract, TheSteadyClockNeverGoesBack) {
    const auto before = harness_.port().now();
    EXPECT_GE(before, 0);
    EXPECT_GE(harness_.port().now(), before);
}

TEST_P(RunLoopContract, WorkThatIsDelayedIsDoneOnceThatTimeHasPassed) {
    auto& loop = harness_.port();
    const auto before = loop.now();
    double done = -1;
    loop.performAfterDelay(0.05, [&] { done = loop.now(); });
    EXPECT_TRUE(harness_.work([&done] { return done >= 0; }));
    EXPECT_GE(done - before, 0.05);
}

TEST_P(RunLoopContract, TheDateIsTheOneThatTheUserSees) {
    EXPECT_GT(harness_.port().date().secondsSinceReferenceDate, 0);
    const auto day = harness_.port().today();
    EXPECT_TRUE(std::regex_match(day, std::regex("20\\d\\d-[01]\\d-[0-3]\\d"))) << day;
}

TARNWICK_BOTH_IMPLEMENTATIONS(RunLoopContract);

TEST(SystemClock, GoesWithTheSystems) {
    constexpr double from1970To2001 = 978'307'200;
    const auto before = static_cast<double>(std::time(nullptr));
    const auto now = makeRunLoop()->date().secondsSinceReferenceDate + from1970To2001;
    EXPECT_GE(now, before);
    EXPECT_LE(now, static_cast<double>(std::time(nullptr)) + 1);
}

class Centre {
public:
    explicit Centre(Implementation implementation) {
        if (implementation == Implementation::overThePlatform) {
            real_ = makeDistributedNotifications();
        }
    }
    DistributedNotifications& port() {
        return real_ ? *real_ : static_cast<DistributedNotifications&>(memory_);
    }
    bool deliver(const std::function<bool()>& condition) {
        if (!real_) {
            memory_.deliver();
        }
        return real_ ? runLoopUntil(condition) : condition();
    }

private:
    CallLog log_;
    InMemoryNotifications memory_{log_};
    std::unique_ptr<DistributedNotifications> real_;
};

using DistributedNotificationsContract = Contract<Centre>;

TEST_P(DistributedNotificationsContract, EveryObserverOfTheNameIsCalledOncePerPost) {
    int first = 0;
    int second = 0;
    int other = 0;
    harness_.port().observe("tarnwick.contract", [&first] { ++first; });
    harness_.port().observe("tarnwick.contract", [&second] { ++second; });
    harness_.port().observe("tarnwick.other", [&other] { ++other; });
    harness_.port().post("tarnwick.contract", deliverImmediately | postToAllSessions);
    EXPECT_TRUE(harness_.deliver([&] { return first > 0 && second > 0; }));
    harness_.port().post("tarnwick.other", deliverImmediately);
    EXPECT_TRUE(harness_.deliver([&] { return other > 0; }));
    EXPECT_EQ(first, 1);
    EXPECT_EQ(second, 1);
}

TEST_P(DistributedNotificationsContract, APostThatNobodyObservesDoesNothing) {
    bool called = false;
    harness_.port().post("tarnwick.nobody", deliverImmediately);
    harness_.port().observe("tarnwick.afterwards", [&called] { called = true; });
    harness_.port().post("tarnwick.afterwards", deliverImmediately);
    EXPECT_TRUE(harness_.deliver([&called] { return called; }));
}

TARNWICK_BOTH_IMPLEMENTATIONS(DistributedNotificationsContract);

} // namespace
} // namespace tarnwick::testing
