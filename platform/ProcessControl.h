#pragma once

namespace tarnwick {

/// The running process itself. Implementations: the C library, in memory.
class ProcessControl {
public:
    virtual ~ProcessControl() = default;
    /// Ends the process with this status. Only the in-memory implementation returns.
    virtual void exit(int status) = 0;
};

} // namespace tarnwick
