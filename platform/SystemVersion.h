#pragma once

namespace tarnwick {

/// The running system's version. Implementations: macOS process information, Linux (the newest), in memory.
class SystemVersion {
public:
    virtual ~SystemVersion() = default;
    [[nodiscard]] virtual bool isAtLeast(int major, int minor, int patch) const = 0;
};

} // namespace tarnwick
