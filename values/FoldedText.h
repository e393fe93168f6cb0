#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

/// The text as it is compared when case and diacritics do not count: in lower case, letters without their
/// marks, whether these are part of a letter or follow it; a sharp s is "ss", a letter of two is both, and an
/// i has no dot to miss. Folded are Greek, Cyrillic and Armenian letters, and the Latin ones of Europe,
/// Turkey, Vietnam and Pinyin. Kana and Korean syllables stay as they are, and are put together from their
/// parts; Chinese characters and everything else stay. What is not UTF-8 stays byte by byte.
[[nodiscard]] std::string folded(std::string_view text);

} // namespace tarnwick
