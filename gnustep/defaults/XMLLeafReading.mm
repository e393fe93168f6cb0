#import "gnustep/defaults/XMLLeafReading.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <optional>
#include <vector>

namespace {

constexpr std::string_view whiteSpace = " \t\r\n";

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(whiteSpace);
    return first == std::string_view::npos
               ? std::string_view()
               : text.substr(first, text.find_last_not_of(whiteSpace) + 1 - first);
}

/// Takes a sign away; whether it was a minus.
bool takeSign(std::string_view &text) {
    const bool isNegative = text.substr(0, 1) == "-";
    if (isNegative || text.substr(0, 1) == "+") {
        text.remove_prefix(1);
    }
    return isNegative;
}

/// The number that is all of the text.
std::optional<std::uint64_t> wholeNumber(std::string_view text, int base = 10) {
    std::uint64_t number = 0;
    const auto *end = text.data() + text.size();
    const auto [last, error] = std::from_chars(text.data(), end, number, base);
    return error == std::errc() && last == end ? std::optional(number) : std::nullopt;
}

/// The units of text in UTF-16.
std::vector<unichar> unitsOf(std::string_view text) {
    std::vector<unichar> units;
    units.reserve(text.size());
    for (std::size_t place = 0; place < text.size();) {
        const auto byte = static_cast<std::uint8_t>(text[place]);
        const std::size_t length = byte < 0x80 ? 1 : byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
        std::uint32_t character = length == 1 ? byte : byte & (0x7FU >> length);
        for (const char next : text.substr(place + 1, length - 1)) {
            character = character << 6 | (static_cast<std::uint8_t>(next) & 0x3FU);
        }
        place += length;
        if (character < 0x10000) {
            units.push_back(static_cast<unichar>(character));
        } else {
            units.push_back(static_cast<unichar>(0xD800 + ((character - 0x10000) >> 10)));
            units.push_back(static_cast<unichar>(0xDC00 + (character & 0x3FF)));
        }
    }
    return units;
}

bool isASCII(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char byte) { return (byte & 0x80) == 0; });
}

constexpr std::uint8_t noDigit = 64;
constexpr std::uint8_t space = 65;

/// What each byte is worth in base64.
const std::array<std::uint8_t, 256> &base64Values() {
    static const auto values = [] {
        constexpr std::string_view digits =
            "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
        std::array<std::uint8_t, 256> made{};
        made.fill(noDigit);
        for (std::size_t value = 0; value < digits.size(); ++value) {
            made[static_cast<std::uint8_t>(digits[value])] = static_cast<std::uint8_t>(value);
        }
        for (const char byte : whiteSpace) {
            made[static_cast<std::uint8_t>(byte)] = space;
        }
        return made;
    }();
    return values;
}

/// Puts what base64 stands for at `target`, where there is room for three bytes of four; gives how many they
/// are.
std::optional<std::size_t> decode(std::string_view text, std::uint8_t *target) {
    const auto &values = base64Values();
    std::uint8_t *const begin = target;
    std::uint32_t bits = 0;
    unsigned digits = 0;
    unsigned padding = 0;
    for (const char byte : text) {
        const auto value = values[static_cast<std::uint8_t>(byte)];
        if (value < noDigit && padding == 0) {
            bits = bits << 6 | value;
            if (++digits == 4) {
                *target++ = static_cast<std::uint8_t>(bits >> 16);
                *target++ = static_cast<std::uint8_t>(bits >> 8);
                *target++ = static_cast<std::uint8_t>(bits);
                digits = 0;
            }
        } else if (byte == '=' && digits >= 2 && digits + padding < 4) {
            ++padding;
        } else if (value != space) {
            return std::nullopt;
        }
    }
    if (digits + padding != (digits > 0 ? 4 : 0)) {
        return std::nullopt;
    }
    bits <<= 6 * padding;
    for (unsigned index = 1; index < digits; ++index) {
        *target++ = static_cast<std::uint8_t>(bits >> (24 - 8 * index));
    }
    return static_cast<std::size_t>(target - begin);
}

} // namespace

NSString *TNNewText(std::string_view text, bool isMutable) {
    // Looked up once: asking for a class by its name takes a while.
    static Class const fixedType = [NSString class];
    static Class const mutableType = [NSMutableString class];
    Class type = isMutable ? mutableType : fixedType;
    if (isASCII(text)) {
        return [[type alloc] initWithBytes:text.data() length:text.size() encoding:NSASCIIStringEncoding];
    }
    auto units = unitsOf(text);
    constexpr unichar byteOrderMark = 0xFEFF;
    if (units.front() != byteOrderMark) {
        return [[type alloc] initWithCharacters:units.data() length:units.size()];
    }
    // The toolkit takes it for no part of a text that begins with it.
    units.insert(units.begin(), ' ');
    NSMutableString *whole = [NSMutableString stringWithCharacters:units.data() length:units.size()];
    [whole deleteCharactersInRange:NSMakeRange(0, 1)];
    return isMutable ? [whole retain] : [whole copy];
}

NSNumber *TNNewInteger(std::string_view text) {
    text = trimmed(text);
    const bool isNegative = takeSign(text);
    const bool isHexadecimal = text.substr(0, 2) == "0x" || text.substr(0, 2) == "0X";
    const auto size = isHexadecimal ? wholeNumber(text.substr(2), 16) : wholeNumber(text);
    constexpr std::uint64_t largest = std::numeric_limits<std::int64_t>::max();
    if (!size || (isNegative && *size > largest + 1)) {
        return nil;
    }
    if (!isNegative && *size > largest) {
        return [[NSNumber numberWithUnsignedLongLong:*size] retain];
    }
    static Class const type = [NSNumber class];
    return [[type numberWithLongLong:static_cast<std::int64_t>(isNegative ? 0 - *size : *size)] retain];
}

NSNumber *TNNewReal(std::string_view text) {
    text = trimmed(text);
    const bool isNegative = takeSign(text);
    double size = 0;
    const auto *end = text.data() + text.size();
    const auto [last, error] = std::from_chars(text.data(), end, size);
    const bool isSignedTwice = text.substr(0, 1) == "-";
    if (error != std::errc() || last != end || isSignedTwice || text.back() == ')') {
        return nil;
    }
    return [[NSNumber numberWithDouble:isNegative ? -size : size] retain];
}

NSDate *TNNewDate(std::string_view text) {
    using namespace std::chrono;
    constexpr std::string_view form = "0000-00-00T00:00:00Z";
    text = trimmed(text);
    if (text.size() != form.size()) {
        return nil;
    }
    for (std::size_t place = 0; place < form.size(); ++place) {
        const bool isDigit = text[place] >= '0' && text[place] <= '9';
        if (form[place] == '0' ? !isDigit : text[place] != form[place]) {
            return nil;
        }
    }
    const auto number = [text](std::size_t place, std::size_t length) {
        return static_cast<unsigned>(*wholeNumber(text.substr(place, length)));
    };
    const year_month_day calendar(
        year(static_cast<int>(number(0, 4))), month(number(5, 2)), day(number(8, 2)));
    const auto hour = number(11, 2);
    const auto minute = number(14, 2);
    const auto second = number(17, 2);
    if (!calendar.ok() || calendar.year() == year(0) || hour > 23 || minute > 59 || second > 59) {
        return nil;
    }
    constexpr auto reference = sys_days(year(2001) / January / 1);
    const auto time = sys_days(calendar) - reference + hours(hour) + minutes(minute) + seconds(second);
    return [[NSDate alloc] initWithTimeIntervalSinceReferenceDate:static_cast<double>(time.count())];
}

NSData *TNNewData(std::string_view text, bool isMutable) {
    auto *bytes = static_cast<std::uint8_t *>(std::malloc(text.size() / 4 * 3 + 3));
    const auto length = bytes ? decode(text, bytes) : std::nullopt;
    if (!length) {
        std::free(bytes);
        return nil;
    }
    return [[(isMutable ? [NSMutableData class] : [NSData class]) alloc] initWithBytesNoCopy:bytes
                                                                                      length:*length
                                                                                freeWhenDone:YES];
}
