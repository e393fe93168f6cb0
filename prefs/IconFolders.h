#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace tarnwick {

class ApplicationBundle;
class FileManager;
class KnownFolders;
class SystemLog;

/// The icons that the Finder extension reads from the group container, copied from the application's
/// resources.
class IconFolders {
public:
    IconFolders(
        FileManager& files, const KnownFolders& folders, const ApplicationBundle& bundle, SystemLog& log)
        : files_(files), folders_(folders), bundle_(bundle), log_(log) {}

    /// Removes both folders and makes them anew: the icons of the menu's sections, then those of the fixed
    /// Others items. An icon that the resources lack is left out; one log line says how many.
    void rebuild();

private:
    /// How many of the icons are not in the folder afterwards.
    std::size_t rebuild(const std::string& folder, std::span<const std::string_view> names);

    FileManager& files_;
    const KnownFolders& folders_;
    const ApplicationBundle& bundle_;
    SystemLog& log_;
};

} // namespace tarnwick
