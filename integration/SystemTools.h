#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarnwick {

class FileContents;
class KnownFolders;
class Panels;
class Process;
class SystemLog;
class Workspace;

/// Tools beside the settings; nothing of the program itself depends on them.
class SystemTools {
public:
    SystemTools(Process& process, Workspace& workspace, Panels& panels, const FileContents& contents,
        const KnownFolders& folders, SystemLog& log)
        : process_(process), workspace_(workspace), panels_(panels), contents_(contents), folders_(folders),
          log_(log) {}

    /// Runs a command with /bin/sh -c, blocks until it closes its output, and gives that as text; nothing
    /// when it is not valid UTF-8. A failing command still gives what it wrote.
    [[nodiscard]] std::optional<std::string> runCommand(const std::string& command);

    /// Whether at least one copy of the application is registered; an error of the register counts as none.
    [[nodiscard]] bool isInstalled(std::string_view bundleIdentifier) const;

    /// Opens a chooser at the system's keyboard-shortcut file and returns. Each chosen file's path is logged
    /// and the file is parsed; the parsed value is dropped.
    void chooseSystemShortcuts();

    /// Opens one of the fixed addresses of Links.h in the default browser.
    void openLink(std::string_view address);

private:
    Process& process_;
    Workspace& workspace_;
    Panels& panels_;
    const FileContents& contents_;
    const KnownFolders& folders_;
    SystemLog& log_;
};

} // namespace tarnwick
