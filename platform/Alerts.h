#pragma once

#include <string>
#include <vector>

namespace tarnwick {

enum class AlertStyle { standard, warning };

/// A modal alert. An empty message text is left to the platform; no button titles: the platform's own one.
struct AlertRequest {
    AlertStyle style = AlertStyle::standard;
    std::string messageText;
    std::string informativeText;
    std::vector<std::string> buttons;

    bool operator==(const AlertRequest&) const = default;
};

/// The answer of the first button; the others count up from it.
inline constexpr long alertFirstButton = 1000;

/// Shows alerts. Implementations: AppKit alerts, in memory.
class Alerts {
public:
    virtual ~Alerts() = default;
    /// Blocks until the alert is closed.
    virtual long runModal(const AlertRequest& request) = 0;
};

} // namespace tarnwick
