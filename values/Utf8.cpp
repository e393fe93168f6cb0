#include "values/Utf8.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace tarnwick {
namespace {

/// The forms of a character beyond ASCII: the range of its first byte, that of its second, and its length.
struct Form {
    unsigned char firstLow;
    unsigned char firstHigh;
    unsigned char secondLow;
    unsigned char secondHigh;
    std::size_t length;
};

constexpr std::array<Form, 8> forms{{
    {0xC2, 0xDF, 0x80, 0xBF, 2},
    {0xE0, 0xE0, 0xA0, 0xBF, 3},
    {0xE1, 0xEC, 0x80, 0xBF, 3},
    {0xED, 0xED, 0x80, 0x9F, 3},
    {0xEE, 0xEF, 0x80, 0xBF, 3},
    {0xF0, 0xF0, 0x90, 0xBF, 4},
    {0xF1, 0xF3, 0x80, 0xBF, 4},
    {0xF4, 0xF4, 0x80, 0x8F, 4},
}};

bool isWithin(char byte, unsigned char low, unsigned char high) {
    const auto value = static_cast<unsigned char>(byte);
    return value >= low && value <= high;
}

/// The length of the character that the bytes begin with; 0 when it is malformed.
std::size_t characterLength(std::string_view bytes) {
    if (static_cast<unsigned char>(bytes[0]) < 0x80) {
        return 1;
    }
    const auto form = std::find_if(forms.begin(), forms.end(),
        [&](const auto& candidate) { return isWithin(bytes[0], candidate.firstLow, candidate.firstHigh); });
    if (form == forms.end() || bytes.size() < form->length) {
        return 0;
    }
    if (!isWithin(bytes[1], form->secondLow, form->secondHigh)) {
        return 0;
    }
    for (std::size_t index = 2; index < form->length; ++index) {
        if (!isWithin(bytes[index], 0x80, 0xBF)) {
            return 0;
        }
    }
    return form->length;
}

} // namespace

bool isValidUtf8(std::string_view bytes) {
    while (!bytes.empty()) {
        const auto length = characterLength(bytes);
        if (length == 0) {
            return false;
        }
        bytes.remove_prefix(length);
    }
    return true;
}

std::optional<char32_t> takeCharacter(std::string_view& bytes) {
    const auto length = characterLength(bytes);
    if (length == 0) {
        return std::nullopt;
    }
    // Of the first byte's bits those that say the length are left out.
    char32_t character = static_cast<unsigned char>(bytes[0]) & (length == 1 ? 0x7FU : 0x7FU >> length);
    for (std::size_t index = 1; index < length; ++index) {
        character = character << 6U | (static_cast<unsigned char>(bytes[index]) & 0x3FU);
    }
    bytes.remove_prefix(length);
    return character;
}

std::size_t startOfLastCharacter(std::string_view bytes) {
    constexpr unsigned char kind = 0b1100'0000;
    constexpr unsigned char continuation = 0b1000'0000;
    auto start = bytes.empty() ? 0 : bytes.size() - 1;
    while (start > 0 && (static_cast<unsigned char>(bytes[start]) & kind) == continuation) {
        --start;
    }
    return start;
}

void appendUtf8(std::string& text, char32_t character) {
    const auto append = [&text](
                            char32_t byte) { text += static_cast<char>(static_cast<unsigned char>(byte)); };
    const auto appendRest = [&](unsigned int bits) { append(0x80U | (character >> bits & 0x3FU)); };
    if (character < 0x80) {
        append(character);
    } else if (character < 0x800) {
        append(0xC0U | character >> 6U);
        appendRest(0);
    } else if (character < 0x10000) {
        append(0xE0U | character >> 12U);
        appendRest(6);
        appendRest(0);
    } else {
        append(0xF0U | character >> 18U);
        appendRest(12);
        appendRest(6);
        appendRest(0);
    }
}

} // namespace tarnwick
