#include "ui/FolderLabel.h"

#include "platform/ApplicationBundle.h"
#include "prefs/HomeFolder.h"
#include "prefs/RuleRecord.h"
#include "values/PathText.h"

#include <array>
#include <string_view>

namespace tarnwick {
namespace {

constexpr std::array<std::string_view, 5> wellKnownFolders{
    "Downloads", "Pictures", "Music", "Movies", "Desktop"};

} // namespace

std::string folderLabel(
    const KnownFolders& folders, const ApplicationBundle& bundle, const RuleRecord& record) {
    if (const auto name = record.text(field::displayName); !name.empty()) {
        return std::string(name);
    }
    const auto path = record.text(field::realPath);
    for (const auto& name : wellKnownFolders) {
        if (path == homeSubfolder(folders, name)) {
            return bundle.localized(name);
        }
    }
    if (path == undefinedPath) {
        return bundle.localized(undefinedPath);
    }
    return std::string(lastPathComponent(path));
}

std::string shortenedPath(const KnownFolders& folders, const RuleRecord& record) {
    const auto home = homeFolder(folders);
    std::string path(record.text(field::realPath));
    for (auto found = path.find(home); found != std::string::npos; found = path.find(home, found + 1)) {
        path.replace(found, home.size(), "~");
    }
    return path;
}

} // namespace tarnwick
