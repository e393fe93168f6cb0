#include "ui/ShortenedText.h"

namespace tarnwick {
namespace {

/// A code point of UTF-8 goes on in such bytes.
bool continuesCodePoint(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

} // namespace

std::string shortened(std::string text, std::size_t most) {
    std::size_t codePoints = 0;
    for (std::size_t place = 0; place < text.size(); ++place) {
        if (!continuesCodePoint(text[place]) && ++codePoints > most) {
            return text.substr(0, place) + "\u2026";
        }
    }
    return text;
}

} // namespace tarnwick
