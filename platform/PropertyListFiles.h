#pragma once

#include "values/PlistValue.h"

#include <cstddef>
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

/// Property lists in XML in files that the user chooses. Implementations: Foundation property lists, in
/// memory.
class PropertyListFiles {
public:
    /// What a file may have at most, to be read and to be written.
    static constexpr std::size_t mostBytes = std::size_t{512} * 1024 * 1024;

    virtual ~PropertyListFiles() = default;
    /// A regular file of at most `mostBytes`; a link is not followed.
    [[nodiscard]] virtual ListFileContent read(const std::string& path) const = 0;
    /// The file is written whole or not at all: one that is there already stays until the new one is
    /// complete.
    [[nodiscard]] virtual ListFileWriting write(const std::string& path, const PlistValue& value) = 0;
};

} // namespace tarnwick
