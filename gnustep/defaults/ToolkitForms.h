#pragma once

#include <cstddef>
#include <cstdint>

namespace tarnwick {

/// Whether the toolkit's own readers come to an end, with a list or without one, over a property list that is
/// not XML: in the toolkit's form of text, or in binary form. They call themselves for each container, take
/// lengths as they stand there, and keep whole numbers on the stack. What they might not survive is damaged;
/// so is the form of the toolkit's serializer, which nobody keeps settings in.
[[nodiscard]] bool toolkitSurvives(const std::uint8_t* bytes, std::size_t size);

} // namespace tarnwick
