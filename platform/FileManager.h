#pragma once

#include "values/PlistValue.h"

#include <optional>
#include <string>

namespace tarnwick {

/// Files and folders by absolute POSIX path. Every operation tells whether it succeeded and changes nothing
/// when it did not; whether a failure matters is the caller's business.
/// Implementations: AppKit file manager, in memory.
class FileManager {
public:
    virtual ~FileManager() = default;
    [[nodiscard]] virtual bool exists(const std::string& path) const = 0;
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
    /// The value in a property-list file of any format; nothing when it cannot be read or is malformed.
    [[nodiscard]] virtual std::optional<PlistValue> propertyList(const std::string& path) const = 0;
};

} // namespace tarnwick
