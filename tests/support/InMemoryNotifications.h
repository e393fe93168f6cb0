#pragma once

#include "platform/DistributedNotifications.h"
#include "tests/support/CallLog.h"

#include <deque>
#include <functional>
#include <map>
#include <string>

namespace tarnwick::testing {

/// Keeps what is posted until the test delivers it. Logs "post NAME OPTIONS" and "observe notification NAME".
class InMemoryNotifications final : public DistributedNotifications {
public:
    explicit InMemoryNotifications(CallLog& log) : log_(log) {}
    std::multimap<std::string, std::function<void()>, std::less<>> handlers;
    void deliver();
    void post(std::string_view name, std::uint32_t options) override;
    void observe(std::string_view name, std::function<void()> handler) override;

private:
    CallLog& log_;
    std::deque<std::string> posted_;
};

} // namespace tarnwick::testing
