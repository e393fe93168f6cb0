#import "gnustep/defaults/XMLLeafWriting.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string_view>

namespace {

constexpr unichar replacement = 0xFFFD;

bool isHighHalf(unsigned unit) {
    return (unit & 0xFC00) == 0xD800;
}

bool isLowHalf(unsigned unit) {
    return (unit & 0xFC00) == 0xDC00;
}

bool isStorable(unsigned unit) {
    return unit >= ' ' ? (unit & 0xF800) != 0xD800 && unit < 0xFFFE
                       : unit == '\t' || unit == '\n' || unit == '\r';
}

/// What stands for an ASCII character in XML; empty for itself. A carriage return as it is would be read as a
/// line feed.
std::string_view escapeOf(unsigned unit) {
    switch (unit) {
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    case '&':
        return "&amp;";
    case '\r':
        return "&#13;";
    default:
        return {};
    }
}

/// The character in UTF-8, from `place` on; gives the place behind it.
char *putCharacter(char *place, unsigned character) {
    const auto tail = [character](
                          unsigned shift) { return static_cast<char>(0x80 | (character >> shift & 0x3F)); };
    if (character < 0x80) {
        *place++ = static_cast<char>(character);
    } else if (character < 0x800) {
        *place++ = static_cast<char>(0xC0 | character >> 6);
        *place++ = tail(0);
    } else if (character < 0x10000) {
        *place++ = static_cast<char>(0xE0 | character >> 12);
        *place++ = tail(6);
        *place++ = tail(0);
    } else {
        *place++ = static_cast<char>(0xF0 | character >> 18);
        *place++ = tail(12);
        *place++ = tail(6);
        *place++ = tail(0);
    }
    return place;
}

/// Two digits for twelve bits.
const std::array<std::array<char, 2>, 4096> &base64Pairs() {
    static const auto pairs = [] {
        constexpr std::string_view digits =
            "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
        std::array<std::array<char, 2>, 4096> made{};
        for (std::size_t bits = 0; bits < made.size(); ++bits) {
            made[bits] = {digits[bits >> 6], digits[bits & 63]};
        }
        return made;
    }();
    return pairs;
}

} // namespace

bool TNAppendText(std::string &xml, NSString *text) {
    bool isExact = true;
    constexpr NSUInteger portion = 512;
    constexpr std::size_t longest = 5; // "&amp;"
    std::array<unichar, portion> units;
    std::array<char, portion * longest> characters;
    const NSUInteger length = [text length];
    for (NSUInteger place = 0; place < length;) {
        NSUInteger count = std::min(length - place, portion);
        [text getCharacters:units.data() range:NSMakeRange(place, count)];
        // Both halves of a character come together.
        if (place + count < length && isHighHalf(units[count - 1])) {
            --count;
        }
        place += count;
        char *end = characters.data();
        for (NSUInteger index = 0; index < count; ++index) {
            const unsigned unit = units[index];
            if (isHighHalf(unit) && index + 1 < count && isLowHalf(units[index + 1])) {
                ++index;
                end = putCharacter(end, 0x10000 + ((unit & 0x3FF) << 10) + (units[index] & 0x3FF));
            } else if (!isStorable(unit)) {
                isExact = false;
                end = putCharacter(end, replacement);
            } else if (const auto escape = escapeOf(unit); !escape.empty()) {
                end = std::copy(escape.begin(), escape.end(), end);
            } else {
                end = putCharacter(end, unit);
            }
        }
        xml.append(characters.data(), static_cast<std::size_t>(end - characters.data()));
    }
    return isExact;
}

void TNAppendNumber(std::string &xml, NSNumber *number, TNListKind kind) {
    if (kind == TNListKind::boolean) {
        xml.append([number boolValue] ? "<true/>\n" : "<false/>\n");
        return;
    }
    std::array<char, 32> digits;
    char *const begin = digits.data();
    char *const end = begin + digits.size();
    if (kind == TNListKind::real) {
        // The shortest that is read as the same number.
        xml.append("<real>");
        xml.append(begin, std::to_chars(begin, end, [number doubleValue]).ptr);
        xml.append("</real>\n");
        return;
    }
    xml.append("<integer>");
    xml.append(begin, kind == TNListKind::unsignedInteger
                          ? std::to_chars(begin, end, [number unsignedLongLongValue]).ptr
                          : std::to_chars(begin, end, [number longLongValue]).ptr);
    xml.append("</integer>\n");
}

std::optional<bool> TNAppendDate(std::string &xml, NSDate *date) {
    using namespace std::chrono;
    constexpr auto reference = sys_days(year(2001) / January / 1);
    constexpr auto first = sys_days(year(1) / January / 1);
    constexpr auto end = sys_days(year(10000) / January / 1);
    const double given = [date timeIntervalSinceReferenceDate];
    const double whole = std::floor(given);
    const auto inSeconds = [reference](sys_days day) {
        return static_cast<double>(seconds(day - reference).count());
    };
    if (!(whole >= inSeconds(first) && whole < inSeconds(end))) {
        return std::nullopt;
    }
    const auto time = reference + seconds(static_cast<std::int64_t>(whole));
    const auto day = floor<days>(time);
    const year_month_day calendar(day);
    const hh_mm_ss clock(time - day);
    std::array<char, 64> line;
    std::snprintf(line.data(), line.size(), "<date>%04d-%02u-%02uT%02d:%02d:%02dZ</date>\n",
        static_cast<int>(calendar.year()), static_cast<unsigned>(calendar.month()),
        static_cast<unsigned>(calendar.day()), static_cast<int>(clock.hours().count()),
        static_cast<int>(clock.minutes().count()), static_cast<int>(clock.seconds().count()));
    xml.append(line.data());
    return whole == given;
}

void TNAppendData(std::string &xml, NSData *data) {
    const auto *from = static_cast<const std::uint8_t *>([data bytes]);
    const std::size_t length = [data length];
    xml.append("<data>\n");
    const auto start = xml.size();
    xml.resize(start + (length + 2) / 3 * 4, '=');
    char *to = xml.data() + start;
    const auto &pairs = base64Pairs();
    const auto put = [&to, &pairs](unsigned bits) {
        std::memcpy(to, pairs[bits].data(), 2);
        to += 2;
    };
    std::size_t place = 0;
    for (; place + 3 <= length; place += 3) {
        const unsigned bits =
            static_cast<unsigned>(from[place] << 16 | from[place + 1] << 8 | from[place + 2]);
        put(bits >> 12);
        put(bits & 0xFFF);
    }
    if (place + 2 == length) {
        put(static_cast<unsigned>(from[place] << 4 | from[place + 1] >> 4));
        *to = pairs[(from[place + 1] & 0xFU) << 2][1];
    } else if (place + 1 == length) {
        put(static_cast<unsigned>(from[place] << 4));
    }
    xml.append("\n</data>\n");
}
