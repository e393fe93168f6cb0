#pragma once

namespace tarnwick {

/// The system's own account of the Finder extension; only to be asked on systems that have one
/// (macOS 10.14 and later). Implementations: macOS Finder Sync, Linux (enabled, unless a test says
/// otherwise), in memory.
class FinderSync {
public:
    virtual ~FinderSync() = default;
    [[nodiscard]] virtual bool isExtensionEnabled() const = 0;
    virtual void showExtensionManagementInterface() = 0;
};

} // namespace tarnwick
