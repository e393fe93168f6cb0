#include "tests/support/InMemoryPlatform.h"

#include "prefs/FactoryTables.h"

namespace tarnwick::testing {

InMemoryPlatform::InMemoryPlatform() {
    files.folders = {"/container", "/scripts", "/resources", "/tmp"};
    addResources();
}

void InMemoryPlatform::addResources() {
    for (const auto& row : factoryTemplates) {
        const auto extension = std::string(row.extension);
        files.files["/resources/" + std::string(row.displayName) + "." + extension] = "template " + extension;
        files.files["/resources/" + extension + ".png"] = "icon " + extension;
    }
    for (const auto* name : {"createNewFile", "copyFilesTo", "moveFilesTo", "commonPath", "customIcon",
             "Hidden Selected Files", "Hidden All Files in Path", "Nohidden Selected Files",
             "Nohidden All Files in Path", "Open in iTerm2", "Delete directly", "Open in Terminal", "Paste",
             "Copy Path", "Cut", "Image to Icon", "VSCode", "Sublime Text", "Emacs"}) {
        files.files["/resources/" + std::string(name) + ".png"] = "icon " + std::string(name);
    }
}

Ports InMemoryPlatform::ports() {
    return {preferences, files, contents, folders, bundle, images, panels, workspace, userScripts,
        notifications, runLoop, systemLog, process, undoHistory};
}

} // namespace tarnwick::testing
