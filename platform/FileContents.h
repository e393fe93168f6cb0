#pragma once

#include "values/PlistValue.h"

#include <cstddef>
#include <optional>
#include <string>
#include <variant>

namespace tarnwick {

/// Why a file gave no property list.
enum class ListFileFault {
    unreadable,
    /// A folder, a link, a device ...
    notRegular,
    tooLarge,
    empty,
    /// No XML at all.
    foreign,
    damaged
};

using ListFileContent = std::variant<PlistValue, ListFileFault>;

enum class ListFileWriting { done, tooLarge, failed };

/// What files and folders hold, as values; where they are is `FileManager`. Paths are absolute.
/// Implementations: Foundation property lists and POSIX files, in memory.
class FileContents {
public:
    /// What `readList` reads and `writeList` writes at most.
    static constexpr std::size_t mostBytes = std::size_t{512} * 1024 * 1024;

    virtual ~FileContents() = default;
    /// A file's bytes, or a dictionary of what a folder holds by name, in which no link is followed. Nothing
    /// when it cannot be read whole, or is or holds anything but files and folders.
    [[nodiscard]] virtual std::optional<PlistValue> readTree(const std::string& path) const = 0;
    /// Puts a file or a folder where nothing is. When that fails, nothing of it is left. The names in it must
    /// lead nowhere else.
    [[nodiscard]] virtual bool writeTree(const std::string& path, const PlistValue& tree) = 0;
    /// The value in a file that the user chose: a regular one of at most `mostBytes`, in XML; a link is not
    /// followed.
    [[nodiscard]] virtual ListFileContent readList(const std::string& path) const = 0;
    /// In XML. The file is written whole or not at all: one that is there already stays until the new one is
    /// complete.
    [[nodiscard]] virtual ListFileWriting writeList(const std::string& path, const PlistValue& value) = 0;
    /// The value in a property-list file of any format; nothing when it cannot be read or is malformed.
    [[nodiscard]] virtual std::optional<PlistValue> propertyList(const std::string& path) const = 0;
};

} // namespace tarnwick
