#pragma once

#include <cstddef>
#include <cstdint>

namespace tarnwick {

/// Whether the bytes begin like a TIFF or PNG, the formats that lists and resources hold, of a size that so
/// many bytes can describe. Decoders believe the size, and take gigabytes for a damaged picture of a few
/// bytes.
[[nodiscard]] bool mayBePicture(const std::uint8_t* bytes, std::size_t size);

} // namespace tarnwick
