#include "SettingsReaders.h"

#import "adapters/foundation/PlistConversion.h"
#import "gnustep/defaults/PropertyListKinds.h"
#import "gnustep/defaults/XMLListReader.h"
#import "gnustep/defaults/XMLListWriter.h"

#import <Foundation/Foundation.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <string_view>
#include <vector>

/// GNUstep's own reader, which the layer has replaced.
@interface GSXMLPListParser : NSObject
- (id)initWithData:(NSData *)data mutability:(NSUInteger)options;
- (BOOL)parse;
- (id)result;
@end

namespace tarnwick::fuzz {
namespace {

std::string hexadecimal(std::string_view bytes) {
    std::string text;
    for (const char byte : bytes) {
        constexpr std::string_view digits = "0123456789abcdef";
        text += digits[static_cast<std::uint8_t>(byte) >> 4];
        text += digits[static_cast<std::uint8_t>(byte) & 15];
    }
    return text;
}

std::string describedText(NSString *text) {
    NSData *bytes = [text dataUsingEncoding:NSUTF16BigEndianStringEncoding];
    return hexadecimal({static_cast<const char *>([bytes bytes]), [bytes length]});
}

std::string describedReal(double number) {
    return std::isnan(number) ? "rnan;" : "r" + std::to_string(std::bit_cast<std::uint64_t>(number)) + ";";
}

std::string described(id value);

std::string describedDictionary(NSDictionary *dictionary) {
    std::vector<std::string> entries;
    for (NSString *key in dictionary) {
        entries.push_back("k" + describedText(key) + ";" + described([dictionary objectForKey:key]));
    }
    std::sort(entries.begin(), entries.end());
    std::string text = "{";
    for (const auto &entry : entries) {
        text += entry;
    }
    return text + "}";
}

std::string described(id value) {
    switch (TNListTypeOf(value).kind) {
    case TNListKind::boolean:
        return [value boolValue] ? "T" : "F";
    case TNListKind::integer:
        return "i" + std::to_string([value longLongValue]) + ";";
    case TNListKind::unsignedInteger:
        return "i" + std::to_string([value unsignedLongLongValue]) + ";";
    case TNListKind::real:
        return describedReal([value doubleValue]);
    case TNListKind::string:
        return "s" + describedText(value) + ";";
    case TNListKind::data:
        return "d" + hexadecimal({static_cast<const char *>([value bytes]), [value length]}) + ";";
    case TNListKind::date:
        // Which zero it is makes no other date.
        return "t" + describedReal([value timeIntervalSinceReferenceDate] + 0.0);
    case TNListKind::dictionary:
        return describedDictionary(value);
    case TNListKind::array: {
        std::string text = "(";
        for (id element in value) {
            text += described(element);
        }
        return text + ")";
    }
    case TNListKind::none:
        return "?";
    }
}

NSData *dataOf(const std::string &bytes) {
    return [NSData dataWithBytes:bytes.data() length:bytes.size()];
}

Description descriptionOf(id value) {
    return value ? Description(described(value)) : std::nullopt;
}

id readInAnyForm(const std::string &bytes) {
    return [NSPropertyListSerialization propertyListWithData:dataOf(bytes)
                                                     options:NSPropertyListImmutable
                                                      format:nullptr
                                                       error:nullptr];
}

std::optional<Written> writtenFor(id value) {
    TNXMLListWriter writer;
    if (!value || !writer.write(value)) {
        return std::nullopt;
    }
    return Written{writer.bytes(), writer.isExact()};
}

} // namespace

Description readBySettings(const std::string &bytes) {
    return descriptionOf(readInAnyForm(bytes));
}

Description readByLayer(const std::string &bytes, Changeable asked) {
    return descriptionOf(TNReadXMLList(dataOf(bytes),
        asked == Changeable::nothing ? NSPropertyListImmutable : NSPropertyListMutableContainersAndLeaves)
                             .value);
}

Description readByToolkit(const std::string &bytes) {
    GSXMLPListParser *parser = [[[NSClassFromString(@"GSXMLPListParser") alloc] initWithData:dataOf(bytes)
                                                                                  mutability:0] autorelease];
    @try {
        return [parser parse] ? descriptionOf([parser result]) : std::nullopt;
    } @catch (NSException *) {
        return std::nullopt;
    }
}

std::optional<Written> writtenAgain(const std::string &bytes) {
    return writtenFor(readInAnyForm(bytes));
}

std::optional<Written> written(const PlistValue &value) {
    return writtenFor(toObject(value));
}

std::string describe(const PlistValue &value) {
    return described(toObject(value));
}

} // namespace tarnwick::fuzz
