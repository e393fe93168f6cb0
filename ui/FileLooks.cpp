#include "ui/FileLooks.h"

#include "platform/RunLoop.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace tarnwick {
namespace {

constexpr double slowSeconds = 0.05;

/// Where systems put their volumes, each in a folder so many levels below.
struct VolumeFolder {
    std::string_view path;
    int levels;
};

constexpr std::array volumeFolders{VolumeFolder{"/Volumes/", 1}, VolumeFolder{"/Network/Servers/", 1},
    VolumeFolder{"/net/", 1}, VolumeFolder{"/mnt/", 1}, VolumeFolder{"/media/", 2},
    VolumeFolder{"/run/media/", 2}};

/// By the path's text alone: asking the system would be to look already. What lies on no other volume counts
/// as lying on the one that the system started from.
std::string_view volumeOf(std::string_view path) {
    for (const auto& [folder, levels] : volumeFolders) {
        if (path.substr(0, folder.size()) != folder) {
            continue;
        }
        auto end = folder.size() - 1;
        for (int level = 0; level < levels && end != std::string_view::npos; ++level) {
            end = path.find('/', end + 1);
        }
        return path.substr(0, end);
    }
    return "/";
}

} // namespace

FileKind FileLooks::known(const std::string& path) const {
    const auto found = known_.find(path);
    return found == known_.end() ? FileKind::unknown : found->second;
}

void FileLooks::look(const std::string& path) {
    const auto volume = volumeOf(path);
    if (slowVolumes_.count(volume) != 0) {
        return;
    }
    const auto before = clock_.now();
    known_[path] = files_.kindOf(path);
    if (clock_.now() - before > slowSeconds) {
        slowVolumes_.emplace(volume);
    }
}

} // namespace tarnwick
