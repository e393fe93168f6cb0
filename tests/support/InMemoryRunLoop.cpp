#include "tests/support/InMemoryRunLoop.h"

#include <algorithm>
#include <utility>

namespace tarnwick::testing {

void InMemoryRunLoop::performAfterDelay(double seconds, std::function<void()> work) {
    log_.add("schedule");
    delays.push_back(seconds);
    main_.emplace(time + seconds, std::move(work));
}

void InMemoryRunLoop::performOnMainQueue(std::function<void()> work) {
    log_.add("queue on main");
    main_.emplace(time, std::move(work));
}

void InMemoryRunLoop::performInBackground(std::function<void()> work) {
    log_.add("queue in background");
    background_.push_back(std::move(work));
}

void InMemoryRunLoop::runMain() {
    while (!main_.empty()) {
        const auto next = main_.extract(main_.begin());
        time = std::max(time, next.key());
        next.mapped()();
    }
}

void InMemoryRunLoop::runBackground() {
    while (!background_.empty()) {
        const auto work = std::move(background_.front());
        background_.pop_front();
        work();
    }
}

} // namespace tarnwick::testing
