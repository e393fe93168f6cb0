#import "ListDescription.h"

#import "gnustep/defaults/PropertyListKinds.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <string_view>
#include <vector>

namespace tarnwick::probe {
namespace {

template <typename... Arguments>
std::string formatted(const char *format, Arguments... arguments) {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), format, arguments...);
    return text.data();
}

std::string descriptionOfNumber(double number) {
    // Which zero it is shows; which kind of none it is does not.
    return std::isnan(number) ? "nan" : formatted("%.17g", number);
}

std::string descriptionOfText(NSString *text) {
    std::string result = "\"";
    for (NSUInteger place = 0; place < [text length]; ++place) {
        const unsigned unit = [text characterAtIndex:place];
        const bool isPlain = unit >= ' ' && unit < 0x7F && unit != '"' && unit != '\\';
        result += isPlain ? std::string(1, static_cast<char>(unit)) : formatted("\\u%04x", unit);
    }
    return result + "\"";
}

std::string descriptionOfData(NSData *data) {
    const auto *bytes = static_cast<const std::uint8_t *>([data bytes]);
    std::string result = "<";
    for (NSUInteger place = 0; place < [data length]; ++place) {
        result += formatted("%02x", unsigned{bytes[place]});
    }
    return result + ">";
}

std::string joined(std::vector<std::string> parts) {
    std::string result;
    for (const auto &part : parts) {
        result += (result.empty() ? "" : ", ") + part;
    }
    return result;
}

std::string descriptionOfArray(NSArray *array) {
    std::vector<std::string> elements;
    for (id element in array) {
        elements.push_back(descriptionOf(element));
    }
    return "(" + joined(std::move(elements)) + ")";
}

std::string descriptionOfDictionary(NSDictionary *dictionary) {
    std::vector<std::string> entries;
    for (NSString *key in dictionary) {
        entries.push_back(descriptionOfText(key) + ": " + descriptionOf([dictionary objectForKey:key]));
    }
    std::sort(entries.begin(), entries.end());
    return "{" + joined(std::move(entries)) + "}";
}

} // namespace

std::string descriptionOf(id list) {
    switch (TNListTypeOf(list).kind) {
    case TNListKind::boolean:
        return [list boolValue] ? "true" : "false";
    case TNListKind::integer:
        return std::to_string([list longLongValue]);
    case TNListKind::unsignedInteger:
        return std::to_string([list unsignedLongLongValue]);
    case TNListKind::real:
        return "real " + descriptionOfNumber([list doubleValue]);
    case TNListKind::string:
        return descriptionOfText(list);
    case TNListKind::data:
        return descriptionOfData(list);
    case TNListKind::date:
        // Which zero it is makes no other date.
        return "date " + descriptionOfNumber([list timeIntervalSinceReferenceDate] + 0.0);
    case TNListKind::array:
        return descriptionOfArray(list);
    case TNListKind::dictionary:
        return descriptionOfDictionary(list);
    case TNListKind::none:
        return "no property list";
    }
}

} // namespace tarnwick::probe
