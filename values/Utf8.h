#pragma once

#include <string_view>

namespace tarnwick {

/// Whether the bytes are well-formed UTF-8: no overlong form, no surrogate, nothing above U+10FFFF.
[[nodiscard]] bool isValidUtf8(std::string_view bytes);

} // namespace tarnwick
