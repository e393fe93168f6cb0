#pragma once

#include <string>
#include <vector>

namespace tarnwick {

/// What stands at a path. Missing only when the system says so: there is no such file, or what the path leads
/// through is no folder. A system that refuses to say, or cannot, leaves it unknown.
enum class FileKind { unknown, missing, folder, file };

/// Where files and folders are, by absolute POSIX path; what they hold is `FileContents`. Every operation
/// tells whether it succeeded and changes nothing when it did not; whether a failure matters is the caller's
/// business. Implementations: Foundation file manager, in memory.
class FileManager {
public:
    virtual ~FileManager() = default;
    [[nodiscard]] virtual bool exists(const std::string& path) const = 0;
    /// Looks without opening anything; links are followed.
    [[nodiscard]] virtual FileKind kindOf(const std::string& path) const = 0;
    /// The names of all that a folder holds, sorted; none when it cannot be read.
    [[nodiscard]] virtual std::vector<std::string> namesIn(const std::string& folder) const = 0;
    /// Removes a file, or a folder with all its contents.
    virtual bool remove(const std::string& path) = 0;
    /// Creates a folder and the folders above it; an existing folder is a success.
    virtual bool createFolder(const std::string& path) = 0;
    /// A file, or a folder with all its contents. Neither copying nor moving ever overwrites: an existing
    /// destination is a failure.
    virtual bool copy(const std::string& from, const std::string& to) = 0;
    virtual bool move(const std::string& from, const std::string& to) = 0;
    /// Moves at once and as a whole, so that an interruption leaves nothing half done; fails where that takes
    /// a copy, as from one volume to another. Never overwrites either.
    virtual bool rename(const std::string& from, const std::string& to) = 0;
};

} // namespace tarnwick
