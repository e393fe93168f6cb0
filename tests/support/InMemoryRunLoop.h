#pragma once

#include "platform/RunLoop.h"
#include "tests/support/CallLog.h"

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace tarnwick::testing {

/// Keeps deferred work until the test runs it; the steady clock goes on to the moment of what is delayed, and
/// otherwise the clocks stand still. Logs "schedule", "queue on main" and
/// "queue in background".
class InMemoryRunLoop final : public RunLoop {
public:
    explicit InMemoryRunLoop(CallLog& log) : log_(log) {}
    std::vector<double> delays;
    /// What the clocks say.
    double time = 0;
    PlistDate dateTime{700'000'000.5};
    std::string day = "2023-03-08";

    double now() const override { return time; }
    PlistDate date() const override { return dateTime; }
    std::string today() const override { return day; }
    void performAfterDelay(double seconds, std::function<void()> work) override;
    void performOnMainQueue(std::function<void()> work) override;
    void performInBackground(std::function<void()> work) override;
    /// Runs what is waiting, at its time and in order, and what that queues in turn.
    void runMain();
    void runBackground();

private:
    CallLog& log_;
    /// By the moment from which on it may run.
    std::multimap<double, std::function<void()>> main_;
    std::deque<std::function<void()>> background_;
};

} // namespace tarnwick::testing
