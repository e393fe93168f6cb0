#pragma once

#include <string_view>

namespace tarnwick {

/// The system's log, a line at a time. Implementations: Foundation log, in memory.
class SystemLog {
public:
    virtual ~SystemLog() = default;
    virtual void write(std::string_view line) = 0;
};

} // namespace tarnwick
