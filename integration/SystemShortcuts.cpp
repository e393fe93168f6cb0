#include "integration/SystemShortcuts.h"

#include "platform/KnownFolders.h"
#include "platform/OpenPanel.h"
#include "platform/PropertyLists.h"
#include "platform/SystemLog.h"

namespace tarnwick {

void getSystemShortcuts(const Platform& platform) {
    OpenPanelRequest request;
    request.startFolder = platform.folders.library() + "/Preferences/com.apple.symbolichotkeys.plist";
    request.startFolderIsURLText = true;
    request.allowedFileTypes = {"plist"};
    auto& log = platform.log;
    const auto& propertyLists = platform.propertyLists;
    platform.openPanel.begin(request, [&log, &propertyLists](const OpenPanelAnswer& answer) {
        if (!answer.confirmed) {
            return;
        }
        for (const auto& path : answer.paths) {
            log.write(path);
            // Nothing is done with the table yet, nor with a file that cannot be read.
            static_cast<void>(propertyLists.read(path));
        }
    });
}

} // namespace tarnwick
