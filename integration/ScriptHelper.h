#pragma once

#include "platform/UserScript.h"

#include <memory>
#include <string>
#include <string_view>

namespace tarnwick {

class ApplicationBundle;
class FileManager;
class KnownFolders;
class Panels;
class RunLoop;
class SystemLog;

/// The handlers that the user script defines, without parameters.
namespace handler {
inline constexpr std::string_view restartFinder = "restartFinder";
inline constexpr std::string_view openServices = "openServices";
inline constexpr std::string_view initialize = "initialize";
} // namespace handler

/// The user script through which actions run that the sandbox forbids: a file in the Application Scripts
/// folder, copied there from the resources once the user has confirmed that folder.
class ScriptHelper {
public:
    ScriptHelper(UserScripts& userScripts, FileManager& files, KnownFolders& folders,
        const ApplicationBundle& bundle, Panels& panels, RunLoop& runLoop, SystemLog& log)
        : userScripts_(userScripts), files_(files), folders_(folders), bundle_(bundle), panels_(panels),
          runLoop_(runLoop), log_(log) {}

    [[nodiscard]] bool checkScriptInstalled();
    /// Opens a folder chooser on the script folder and returns. Confirming exactly that folder copies the
    /// script there, unless one is there already.
    void doInstallScript();
    /// A task for the installed script; null, with a log line, when there is none.
    [[nodiscard]] std::unique_ptr<UserScriptTask> repairScriptTask();

    /// Calls a handler and does not wait; without a task nothing happens but `repairScriptTask`'s log line.
    void call(std::string_view handlerName);
    void restartFinder() { call(handler::restartFinder); }
    /// Calls the handler from the main queue, after what is running now.
    void openServicesOfSystemPreferences();
    /// Asks whether to delete all settings and, if so, has the script do it.
    void initialize();

private:
    void installInto(const std::string& folder);

    UserScripts& userScripts_;
    FileManager& files_;
    KnownFolders& folders_;
    const ApplicationBundle& bundle_;
    Panels& panels_;
    RunLoop& runLoop_;
    SystemLog& log_;
    /// What runs after an installation: "restartFinder", "setTextServices" or nothing. Nothing sets it.
    std::string pendingFollowUp_;
};

/// The Apple event that calls a handler of the script in the current process.
[[nodiscard]] HandlerCallEvent restartFinderEventDescriptor(std::string_view handlerName);

} // namespace tarnwick
