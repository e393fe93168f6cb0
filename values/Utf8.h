#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tarnwick {

/// Whether the bytes are well-formed UTF-8: no overlong form, no surrogate, nothing above U+10FFFF.
[[nodiscard]] bool isValidUtf8(std::string_view bytes);

/// Takes the first character off the bytes, of which there must be some. Nothing, and nothing taken, when it
/// is malformed.
[[nodiscard]] std::optional<char32_t> takeCharacter(std::string_view& bytes);

/// Where the last character of well-formed bytes begins; 0 for none.
[[nodiscard]] std::size_t startOfLastCharacter(std::string_view bytes);

/// The character must be one that UTF-8 has.
void appendUtf8(std::string& text, char32_t character);

} // namespace tarnwick
