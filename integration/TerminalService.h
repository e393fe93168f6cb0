#pragma once

#include <optional>
#include <string>

namespace tarnwick {

/// One text service that an application offers; any of the four may be missing.
struct TerminalService {
    std::optional<std::string> applicationName;
    std::optional<std::string> serviceDescription;
    /// The service's menu name.
    std::optional<std::string> serviceName;
    std::optional<std::string> identifier;

    /// "<TerminalService: self.applicationName=..., ...>" with "(null)" for what is missing.
    [[nodiscard]] std::string description() const;
};

} // namespace tarnwick
