#pragma once

#include <cstddef>
#include <cstdint>

namespace tarnwick {

/// Whether the containers of a property list, in any of its three formats, nest no deeper than `limit`. The
/// toolkit's parsers call themselves for each level, and run out of stack for a file that is made so.
[[nodiscard]] bool nestsAtMost(std::size_t limit, const std::uint8_t* bytes, std::size_t size);

} // namespace tarnwick
