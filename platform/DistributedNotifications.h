#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

namespace tarnwick {

/// Delivery options, as the platform numbers them.
inline constexpr std::uint32_t deliverImmediately = 1;
inline constexpr std::uint32_t postToAllSessions = 2;

/// Messages between the processes of the user. Implementations: macOS distributed notification centre,
/// GNUstep distributed notification centre, in memory.
class DistributedNotifications {
public:
    virtual ~DistributedNotifications() = default;
    /// Posts a notification without object and without user info.
    virtual void post(std::string_view name, std::uint32_t options) = 0;
    /// Calls `handler` on the main thread for every notification of that name, for the life of the process.
    virtual void observe(std::string_view name, std::function<void()> handler) = 0;
};

} // namespace tarnwick
