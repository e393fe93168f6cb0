#import "adapters/foundation/StringConversion.h"

#include <algorithm>
#include <array>
#include <span>

namespace tarnwick {
namespace {

NSString *decoded(const char *bytes, NSUInteger length) {
    return [[[NSString alloc] initWithBytes:bytes length:length encoding:NSUTF8StringEncoding] autorelease];
}

/// The longest run from the start, at most four bytes, that is one character; 0 when there is none.
std::size_t characterLength(std::string_view text) {
    for (std::size_t length = 1; length <= 4 && length <= text.size(); ++length) {
        if (decoded(text.data(), length)) {
            return length;
        }
    }
    return 0;
}

NSString *repaired(std::string_view text) {
    NSMutableString *result = [NSMutableString string];
    while (!text.empty()) {
        const auto length = characterLength(text);
        [result appendString:length > 0 ? decoded(text.data(), length) : @"\uFFFD"];
        text.remove_prefix(length > 0 ? length : 1);
    }
    return result;
}

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

bool isHighHalf(unsigned unit) {
    return (unit & 0xFC00) == 0xD800;
}

bool isLowHalf(unsigned unit) {
    return (unit & 0xFC00) == 0xDC00;
}

/// In UTF-8; half a character becomes U+FFFD.
void append(std::span<const unichar> units, std::string &text) {
    const auto add = [&text](unsigned bits) { text.push_back(static_cast<char>(bits)); };
    for (std::size_t index = 0; index < units.size(); ++index) {
        unsigned character = units[index];
        if (isHighHalf(character) && index + 1 < units.size() && isLowHalf(units[index + 1])) {
            character = 0x10000 + ((character & 0x3FF) << 10) + (units[++index] & 0x3FFU);
        } else if (isHighHalf(character) || isLowHalf(character)) {
            character = 0xFFFD;
        }
        if (character < 0x80) {
            add(character);
            continue;
        }
        const unsigned tails = character < 0x800 ? 1 : character < 0x10000 ? 2 : 3;
        add(((0xFF00U >> (tails + 1)) & 0xFFU) | character >> (6 * tails));
        for (unsigned left = tails; left > 0; --left) {
            add(0x80 | (character >> (6 * (left - 1)) & 0x3F));
        }
    }
}

} // namespace

std::string toString(NSString *text) {
    constexpr NSUInteger portion = 256;
    std::array<unichar, portion> units;
    const NSUInteger length = [text length];
    std::string result;
    result.reserve(length);
    for (NSUInteger place = 0; place < length;) {
        NSUInteger count = std::min(length - place, portion);
        [text getCharacters:units.data() range:NSMakeRange(place, count)];
        // Both halves of a character come together.
        if (place + count < length && isHighHalf(units[count - 1])) {
            --count;
        }
        append({units.data(), count}, result);
        place += count;
    }
    return result;
}

NSString *toNSString(std::string_view text) {
    if (text.substr(0, byteOrderMark.size()) == byteOrderMark) {
        // A platform may take it for no part of a text that begins with it.
        constexpr std::array<unichar, 2> units = {' ', 0xFEFF};
        NSMutableString *whole = [NSMutableString stringWithCharacters:units.data() length:units.size()];
        [whole appendString:toNSString(text.substr(byteOrderMark.size()))];
        [whole deleteCharactersInRange:NSMakeRange(0, 1)];
        return [[whole copy] autorelease];
    }
    NSString *result = decoded(text.data(), text.size());
    return result ? result : repaired(text);
}

std::string described(id object) {
    return toString([NSString stringWithFormat:@"%@", object]);
}

} // namespace tarnwick
