#pragma once

#include "values/PlistValue.h"

#include <cstddef>
#include <limits>
#include <string>
#include <variant>

namespace tarnwick {

enum class FileFault { unreadable, notRegular, tooLarge };

/// The bytes of a regular file of at most `mostBytes`, looked at and read through one descriptor. The last
/// component of the path is followed to nowhere, and nothing but a regular file is waited for.
[[nodiscard]] std::variant<PlistData, FileFault> readRegularFile(
    const std::string& path, std::size_t mostBytes = std::numeric_limits<std::size_t>::max());

/// False, with nothing left of it, when there is something already or the bytes cannot all be written.
[[nodiscard]] bool writeNewFile(const std::string& path, const PlistData& content);

} // namespace tarnwick
