#pragma once

#include "values/PlistValue.h"

#include <optional>
#include <string>
#include <vector>

namespace tarnwick {

/// Files, and folders with everything in them, as values: a file is its bytes, a folder a dictionary of what
/// it holds by name. Paths are absolute. No link is ever followed. Implementations: POSIX files, in memory.
class FileTrees {
public:
    virtual ~FileTrees() = default;
    /// Nothing when it cannot be read whole, or is or holds anything but files and folders.
    [[nodiscard]] virtual std::optional<PlistValue> read(const std::string& path) const = 0;
    /// Puts a file or a folder where nothing is. When that fails, nothing of it is left. The names in it must
    /// lead nowhere else.
    [[nodiscard]] virtual bool write(const std::string& path, const PlistValue& tree) = 0;
    /// The names of all that a folder holds, sorted; none when it cannot be read.
    [[nodiscard]] virtual std::vector<std::string> namesIn(const std::string& folder) const = 0;
};

} // namespace tarnwick
