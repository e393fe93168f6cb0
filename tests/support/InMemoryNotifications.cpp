#include "tests/support/InMemoryNotifications.h"

#include <algorithm>
#include <utility>

namespace tarnwick::testing {

void InMemoryNotifications::post(std::string_view name, std::uint32_t options) {
    log_.add("post " + std::string(name) + " " + std::to_string(options));
    posted_.emplace_back(name);
}

void InMemoryNotifications::observe(std::string_view name, std::function<void()> handler) {
    log_.add("observe notification " + std::string(name));
    handlers.emplace(name, std::move(handler));
}

void InMemoryNotifications::deliver() {
    while (!posted_.empty()) {
        const auto [begin, end] = handlers.equal_range(posted_.front());
        posted_.pop_front();
        std::for_each(begin, end, [](const auto& entry) { entry.second(); });
    }
}

} // namespace tarnwick::testing
