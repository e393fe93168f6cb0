#pragma once

namespace tarnwick {

class ApplicationBundle;
class LocalPreferences;
class Panels;
class Process;
class RunLoop;
class Workspace;

/// The application's dealings with its Finder extension.
class FinderExtension {
public:
    FinderExtension(ApplicationBundle& bundle, Workspace& workspace, Panels& panels, const Process& process,
        RunLoop& runLoop, LocalPreferences& local)
        : bundle_(bundle), workspace_(workspace), panels_(panels), process_(process), runLoop_(runLoop),
          local_(local) {}

    /// Before macOS 10.14 true without asking.
    [[nodiscard]] bool isExtensionEnabled() const;
    /// A modal prompt; its only button opens the management screen.
    void promptToEnableExtension();
    /// The extension management screen; before macOS 10.14 the top level of the system settings.
    void openSystemPreferences();

    /// Unless the extension is enabled and the prompt was shown once, queues the prompt on the main queue;
    /// when it is closed, "ShownEnableExtensionAlert" is set in `LocalPreferences`.
    void checkAtStart();

private:
    ApplicationBundle& bundle_;
    Workspace& workspace_;
    Panels& panels_;
    const Process& process_;
    RunLoop& runLoop_;
    LocalPreferences& local_;
};

} // namespace tarnwick
