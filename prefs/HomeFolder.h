#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

class KnownFolders;

/// "/Users/" and the login name: the home folder as the lists have it, whatever the system's own idea is.
[[nodiscard]] std::string homeFolder(const KnownFolders& folders);

/// A folder directly inside it, such as "Desktop".
[[nodiscard]] std::string homeSubfolder(const KnownFolders& folders, std::string_view name);

} // namespace tarnwick
