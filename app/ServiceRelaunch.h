#pragma once

namespace tarnwick {

class ApplicationBundle;
class RunLoop;
class Workspace;

/// Starts the service application anew.
class ServiceRelaunch {
public:
    ServiceRelaunch(Workspace& workspace, const ApplicationBundle& bundle, RunLoop& runLoop)
        : workspace_(workspace), bundle_(bundle), runLoop_(runLoop) {}

    /// On a background queue: asks every running copy of the service application to terminate, then launches
    /// the one among the built-in plug-ins, without waiting in between.
    void run();

private:
    Workspace& workspace_;
    const ApplicationBundle& bundle_;
    RunLoop& runLoop_;
};

} // namespace tarnwick
