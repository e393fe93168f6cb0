#include "integration/SystemTools.h"

#include "platform/FileContents.h"
#include "platform/KnownFolders.h"
#include "platform/Panels.h"
#include "platform/Process.h"
#include "platform/SystemLog.h"
#include "platform/Workspace.h"
#include "values/Utf8.h"

namespace tarnwick {

std::optional<std::string> SystemTools::runCommand(const std::string& command) {
    const auto output = process_.output("/bin/sh", {"-c", command});
    std::string text(output.bytes(), output.bytes() + output.size());
    return isValidUtf8(text) ? std::optional(std::move(text)) : std::nullopt;
}

bool SystemTools::isInstalled(std::string_view bundleIdentifier) const {
    const auto copies = workspace_.registeredApplications(bundleIdentifier);
    return !copies.failed && !copies.paths.empty();
}

void SystemTools::chooseSystemShortcuts() {
    OpenPanelRequest request;
    request.startFolder = folders_.library() + "/Preferences/com.apple.symbolichotkeys.plist";
    request.startFolderIsURLText = true;
    request.allowedFileTypes = {"plist"};
    panels_.choose(request, [this](const OpenPanelAnswer& answer) {
        if (!answer.confirmed) {
            return;
        }
        for (const auto& path : answer.paths) {
            log_.write(path);
            // Nothing is done with the table yet, nor with a file that cannot be read.
            static_cast<void>(contents_.propertyList(path));
        }
    });
}

void SystemTools::openLink(std::string_view address) {
    workspace_.openURL(address);
}

} // namespace tarnwick
