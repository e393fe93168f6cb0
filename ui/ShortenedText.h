#pragma once

#include <cstddef>
#include <string>

namespace tarnwick {

/// The text as it is, or its first `most` code points and an ellipsis.
[[nodiscard]] std::string shortened(std::string text, std::size_t most);

} // namespace tarnwick
