#include "prefs/HomeFolder.h"

#include "platform/KnownFolders.h"

namespace tarnwick {

std::string homeFolder(const KnownFolders& folders) {
    return "/Users/" + folders.userName();
}

std::string homeSubfolder(const KnownFolders& folders, std::string_view name) {
    return homeFolder(folders).append("/").append(name);
}

} // namespace tarnwick
