#include "prefs/IconFolders.h"

#include "platform/ApplicationBundle.h"
#include "platform/FileManager.h"
#include "platform/SystemLog.h"
#include "prefs/GroupContainer.h"

#include <array>

namespace tarnwick {
namespace {

constexpr std::array<std::string_view, 5> functionIconNames{
    "createNewFile", "copyFilesTo", "moveFilesTo", "commonPath", "customIcon"};

constexpr std::array<std::string_view, 14> othersIconNames{"Hidden Selected Files",
    "Hidden All Files in Path", "Nohidden Selected Files", "Nohidden All Files in Path", "Open in iTerm2",
    "Delete directly", "Open in Terminal", "Paste", "Copy Path", "Cut", "Image to Icon", "VSCode",
    "Sublime Text", "Emacs"};

} // namespace

void IconFolders::rebuild() {
    const GroupContainer container(folders_);
    std::size_t leftOut = 0;
    if (const auto folder = container.functionIconFolder()) {
        leftOut += rebuild(*folder, functionIconNames);
    }
    if (const auto folder = container.othersIconFolder()) {
        leftOut += rebuild(*folder, othersIconNames);
    }
    if (leftOut > 0) {
        log_.write("icons for the extension that could not be copied: " + std::to_string(leftOut));
    }
}

std::size_t IconFolders::rebuild(const std::string& folder, std::span<const std::string_view> names) {
    if (files_.exists(folder)) {
        files_.remove(folder);
    }
    files_.createFolder(folder);
    const auto resources = bundle_.resourceFolder();
    std::size_t copied = 0;
    for (const auto& name : names) {
        if (files_.exists(resources)) {
            const auto file = std::string("/").append(name).append(".png");
            copied += files_.copy(resources + file, folder + file) ? 1 : 0;
        }
    }
    return names.size() - copied;
}

} // namespace tarnwick
