#pragma once

#include <string>

namespace tarnwick {

/// What stands at a path. Missing only when the system says so: there is no such file, or what the path leads
/// through is no folder. A system that refuses to say, or cannot, leaves it unknown.
enum class FileKind { unknown, missing, folder, file };

/// Looks at files without opening them; links are followed. Implementations: POSIX, in memory.
class FileStatus {
public:
    virtual ~FileStatus() = default;
    [[nodiscard]] virtual FileKind kindOf(const std::string& path) const = 0;
};

} // namespace tarnwick
