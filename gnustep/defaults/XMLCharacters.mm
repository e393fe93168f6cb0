// Missing: characters beyond U+FFFF in property lists written as XML, as of GNUstep Base 1.28, which writes
// each half of one as an escape, "\UD83D", that no reader takes for anything but these six letters. Here the
// finished bytes get the character itself in UTF-8.

#import "gnustep/defaults/ParsedSettings.h"
#import "gnustep/runtime/MethodReplacement.h"

#import <Foundation/Foundation.h>

#include <cstdint>
#include <cstring>
#include <optional>

namespace {

using WithOptions = NSData *(*)(id self, SEL command, id value, NSPropertyListFormat format,
    NSUInteger options, NSError **error);
using WithDescription = NSData *(*)(id self, SEL command, id value, NSPropertyListFormat format,
    NSString **error);

WithOptions nativeWithOptions = nullptr;
WithDescription nativeWithDescription = nullptr;

/// An escape is a backslash, "U" and four digits.
constexpr std::size_t escapeLength = 6;

std::optional<std::uint32_t> unitAt(const char *text) {
    if (text[0] != '\\' || text[1] != 'U') {
        return std::nullopt;
    }
    std::uint32_t unit = 0;
    for (std::size_t index = 2; index < escapeLength; ++index) {
        const char *digits = "0123456789ABCDEF";
        const char *found = text[index] != '\0' ? std::strchr(digits, text[index]) : nullptr;
        if (!found) {
            return std::nullopt;
        }
        unit = unit * 16 + static_cast<std::uint32_t>(found - digits);
    }
    return unit;
}

/// The character that two escapes stand for, when they are the two halves of one.
std::optional<std::uint32_t> characterAt(const char *text) {
    const auto high = unitAt(text);
    if (!high || (*high & 0xFC00) != 0xD800) {
        return std::nullopt;
    }
    const auto low = unitAt(text + escapeLength);
    if (!low || (*low & 0xFC00) != 0xDC00) {
        return std::nullopt;
    }
    return 0x10000 + ((*high & 0x3FF) << 10) + (*low & 0x3FF);
}

void appendCharacter(NSMutableData *data, std::uint32_t character) {
    const std::uint8_t bytes[] = {static_cast<std::uint8_t>(0xF0 | character >> 18),
        static_cast<std::uint8_t>(0x80 | (character >> 12 & 0x3F)),
        static_cast<std::uint8_t>(0x80 | (character >> 6 & 0x3F)),
        static_cast<std::uint8_t>(0x80 | (character & 0x3F))};
    [data appendBytes:bytes length:sizeof bytes];
}

NSData *withWholeCharacters(NSData *xml) {
    const auto *bytes = static_cast<const char *>([xml bytes]);
    const std::size_t length = [xml length];
    NSMutableData *result = nil;
    std::size_t copied = 0;
    std::size_t position = 0;
    while (position + 2 * escapeLength <= length) {
        const auto *escape = static_cast<const char *>(
            std::memchr(bytes + position, '\\', length - position - 2 * escapeLength + 1));
        if (!escape) {
            break;
        }
        position = static_cast<std::size_t>(escape - bytes);
        if (const auto character = characterAt(escape)) {
            if (!result) {
                result = [NSMutableData dataWithCapacity:length];
            }
            [result appendBytes:bytes + copied length:position - copied];
            appendCharacter(result, *character);
            position += 2 * escapeLength;
            copied = position;
        } else {
            ++position;
        }
    }
    if (!result) {
        return xml;
    }
    [result appendBytes:bytes + copied length:length - copied];
    return result;
}

NSData *finished(NSData *data, NSPropertyListFormat format) {
    return format == NSPropertyListXMLFormat_v1_0 ? withWholeCharacters(data) : data;
}

NSData *dataWithOptions(
    id self, SEL command, id value, NSPropertyListFormat format, NSUInteger options, NSError **error) {
    return finished(nativeWithOptions(self, command, value, format, options, error), format);
}

/// By this one NSUserDefaults writes its domains.
NSData *dataWithDescription(id self, SEL command, id value, NSPropertyListFormat format, NSString **error) {
    NSData *data = finished(nativeWithDescription(self, command, value, format, error), format);
    TNRememberParsed(data, value);
    return data;
}

} // namespace

@interface NSPropertyListSerialization (TNXMLCharacters)
@end

@implementation NSPropertyListSerialization (TNXMLCharacters)

+ (void)load {
    nativeWithOptions = TNReplaceMethod(
        object_getClass(self), @selector(dataWithPropertyList:format:options:error:), dataWithOptions);
    nativeWithDescription = TNReplaceMethod(
        object_getClass(self), @selector(dataFromPropertyList:format:errorDescription:), dataWithDescription);
}

@end
