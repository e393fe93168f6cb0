#include "integration/ScriptHelper.h"

#include "platform/ApplicationBundle.h"
#include "platform/FileManager.h"
#include "platform/KnownFolders.h"
#include "platform/Panels.h"
#include "platform/RunLoop.h"
#include "platform/SystemLog.h"

#include <bit>
#include <cstdint>

namespace tarnwick {
namespace {

constexpr std::string_view scriptFile = "/applescript.scpt";
constexpr std::string_view taskLabel = "-[SettingsViewController repairScriptTask]";

constexpr FourCharacterCode code(const char (&text)[5]) {
    FourCharacterCode value = 0;
    for (int index = 0; index < 4; ++index) {
        value = value << 8 | static_cast<unsigned char>(text[index]);
    }
    return value;
}

/// The serial number of the current process, as two words in memory.
struct ProcessSerialNumber {
    std::uint32_t high = 0;
    std::uint32_t low = 2;
};

std::string scriptIn(const std::string& folder) {
    return std::string(folder).append(scriptFile);
}

void logFailure(SystemLog& log, std::string_view what, const std::string& error) {
    log.write(std::string(taskLabel).append(" ").append(what).append(" error = ").append(error));
}

} // namespace

bool ScriptHelper::checkScriptInstalled() {
    const auto folder = folders_.applicationScripts().path;
    return folder && files_.exists(scriptIn(*folder));
}

void ScriptHelper::doInstallScript() {
    const auto folder = folders_.applicationScripts().path;
    OpenPanelRequest request;
    request.canChooseDirectories = true;
    request.canChooseFiles = false;
    request.startFolder = folder;
    request.prompt = bundle_.localized("OK");
    request.message = bundle_.localized("The script helper goes into this folder: confirm it as it is.");
    panels_.choose(request, [this, folder](const OpenPanelAnswer& answer) {
        // Confirming the very folder is what grants the right to write there.
        if (answer.confirmed && folder && !answer.paths.empty() && answer.paths.front() == *folder) {
            installInto(*folder);
        }
    });
}

void ScriptHelper::installInto(const std::string& folder) {
    const auto target = scriptIn(folder);
    const auto source = scriptIn(bundle_.resourceFolder());
    log_.write(source);
    // An installed script is never overwritten, and a failed copy is not reported.
    if (files_.exists(target) || !files_.copy(source, target)) {
        return;
    }
    if (pendingFollowUp_ == "restartFinder") {
        restartFinder();
    } else if (pendingFollowUp_ == "setTextServices") {
        openServicesOfSystemPreferences();
    }
}

std::unique_ptr<UserScriptTask> ScriptHelper::repairScriptTask() {
    const auto folder = folders_.applicationScripts();
    if (!folder.path) {
        logFailure(log_, "no Application Scripts folder", folder.error);
        return nullptr;
    }
    auto result = userScripts_.makeTask(scriptIn(*folder.path));
    if (!result.task) {
        logFailure(log_, "no AppleScript task", result.error);
    }
    return std::move(result.task);
}

void ScriptHelper::call(std::string_view handlerName) {
    if (const auto task = repairScriptTask()) {
        task->execute(restartFinderEventDescriptor(handlerName));
    }
}

void ScriptHelper::openServicesOfSystemPreferences() {
    runLoop_.performOnMainQueue([this] { call(handler::openServices); });
}

void ScriptHelper::initialize() {
    const AlertRequest request{.messageText = bundle_.localized("Warning"),
        .informativeText =
            bundle_.localized("All setting parameters will be deleted !\n\nIf it is still abnormal "
                              "after initialization, delete all Tarnwick on the computer, restart "
                              "the computer, go to the App Store to download, install."),
        .buttons = {bundle_.localized("OK"), bundle_.localized("Cancel")}};
    if (panels_.runAlert(request) == alertFirstButton) {
        call(handler::initialize);
    }
}

HandlerCallEvent restartFinderEventDescriptor(std::string_view handlerName) {
    HandlerCallEvent event;
    event.eventClass = code("ascr");
    event.eventIdentifier = code("psbr");
    event.targetType = code("psn ");
    event.targetBytes = std::bit_cast<std::array<std::uint8_t, 8>>(ProcessSerialNumber{});
    event.returnIdentifier = -1;
    event.transactionIdentifier = 0;
    event.parameterKeyword = code("snam");
    event.parameterText = handlerName;
    return event;
}

} // namespace tarnwick
