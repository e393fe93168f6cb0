#include "ConversionProbe.h"

#import "adapters/foundation/PlistConversion.h"
#import "adapters/foundation/StringConversion.h"

#include <cstring>

namespace tarnwick::testing {

std::string textThroughPlatform(std::string_view text) {
    return toString(toNSString(text));
}

std::vector<unsigned> unitsOf(std::string_view text) {
    NSString *string = toNSString(text);
    std::vector<unsigned> units;
    for (NSUInteger index = 0; index < [string length]; ++index) {
        units.push_back([string characterAtIndex:index]);
    }
    return units;
}

std::string textOfHalves() {
    NSMutableString *text = [NSMutableString stringWithString:toNSString("\U0001F5C2-\U0001F5C2")];
    [text deleteCharactersInRange:NSMakeRange(3, 1)];
    [text deleteCharactersInRange:NSMakeRange(1, 1)];
    return toString(text);
}

std::string textOfNil() {
    return toString(nil);
}

std::optional<PlistValue> throughPlatform(const PlistValue &value) {
    return toPlistValue(toObject(value));
}

std::string numberKindOf(const PlistValue &value) {
    id object = toObject(value);
    if (![object isKindOfClass:[NSNumber class]]) {
        return "other";
    }
    if ([object isKindOfClass:[[NSNumber numberWithBool:YES] class]]) {
        return "boolean";
    }
    return std::strcmp([object objCType], @encode(double)) == 0 ? "real" : "integer";
}

bool sharesItsBytes(const PlistData &data) {
    NSData *object = toNSData(data);
    return [object bytes] == data.bytes() && toPlistData(object).bytes() == data.bytes();
}

bool keepsTheBytesOfMutableData() {
    NSMutableData *data = [NSMutableData dataWithBytes:"before" length:6];
    const PlistData kept = toPlistData(data);
    [data replaceBytesInRange:NSMakeRange(0, 6) withBytes:"after!"];
    return kept.size() == 6 && std::memcmp(kept.bytes(), "before", 6) == 0;
}

std::optional<PlistValue> arrayWithAForeignObject() {
    return toPlistValue([NSArray
        arrayWithObjects:@"text", [[[NSObject alloc] init] autorelease], [NSNumber numberWithInt:7], nil]);
}

std::optional<PlistValue> dictionaryWithANumberForKey() {
    return toPlistValue(
        [NSDictionary dictionaryWithObjectsAndKeys:@"one", [NSNumber numberWithInt:1], @"two", @"key", nil]);
}

std::optional<PlistValue> valueOfNil() {
    return toPlistValue(nil);
}

} // namespace tarnwick::testing
