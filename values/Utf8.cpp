#include "values/Utf8.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace tarnwick {
namespace {

/// The forms a character may have: the range of its first byte, that of its second, and its length.
struct Form {
    unsigned char firstLow;
    unsigned char firstHigh;
    unsigned char secondLow;
    unsigned char secondHigh;
    std::size_t length;
};

constexpr std::array<Form, 9> forms{{
    {0x00, 0x7F, 0x00, 0x00, 1},
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
    const auto form = std::find_if(forms.begin(), forms.end(),
        [&](const auto& candidate) { return isWithin(bytes[0], candidate.firstLow, candidate.firstHigh); });
    if (form == forms.end() || bytes.size() < form->length) {
        return 0;
    }
    if (form->length > 1 && !isWithin(bytes[1], form->secondLow, form->secondHigh)) {
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

} // namespace tarnwick
