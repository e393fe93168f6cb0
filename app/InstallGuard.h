#pragma once

#include <optional>
#include <string>

namespace tarnwick {

class ApplicationBundle;
class Panels;
class Process;
class Workspace;

/// Accepts exactly one installed copy, in the system's applications folder, or none at all.
class InstallGuard {
public:
    InstallGuard(
        const Workspace& workspace, const ApplicationBundle& bundle, Panels& panels, Process& process)
        : workspace_(workspace), bundle_(bundle), panels_(panels), process_(process) {}

    /// Nothing when the running copy is accepted, else the listing of the copies found: a line break, then
    /// each counted path followed by two line breaks, in the platform's order.
    [[nodiscard]] std::optional<std::string> findConflict() const;

    /// Whether the running copy is accepted. Otherwise shows the conflict and ends the process with status 0.
    [[nodiscard]] bool run();

private:
    const Workspace& workspace_;
    const ApplicationBundle& bundle_;
    Panels& panels_;
    Process& process_;
};

} // namespace tarnwick
