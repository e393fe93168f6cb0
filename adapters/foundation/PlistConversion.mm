#import "adapters/foundation/PlistConversion.h"

#import "adapters/foundation/StringConversion.h"

#include <cstring>
#include <memory>

/// Bytes that belong to a core value, as the platform's data.
@interface TNSharedData : NSData {
@private
    tarnwick::PlistData _data;
}
- (id)initWithPlistData:(const tarnwick::PlistData &)data;
@end

@implementation TNSharedData

- (id)initWithPlistData:(const tarnwick::PlistData &)data {
    self = [super init];
    if (self) {
        _data = data;
    }
    return self;
}

/// Where the platform's `init` leads: the bytes are given afterwards.
- (id)initWithBytesNoCopy:(void *)bytes length:(NSUInteger)length freeWhenDone:(BOOL)freeWhenDone {
    return self;
}

- (NSUInteger)length {
    return _data.size();
}

- (const void *)bytes {
    return _data.bytes();
}

- (id)copyWithZone:(NSZone *)zone {
    return [self retain];
}

@end

namespace tarnwick {
namespace {

bool isBoolean(NSNumber *number) {
    // Booleans are of a class of their own on both platforms.
    return [number isKindOfClass:[[NSNumber numberWithBool:YES] class]];
}

bool isReal(NSNumber *number) {
    const char *type = [number objCType];
    return std::strcmp(type, @encode(float)) == 0 || std::strcmp(type, @encode(double)) == 0;
}

PlistValue toPlistNumber(NSNumber *number) {
    if (isBoolean(number)) {
        return PlistValue(static_cast<bool>([number boolValue]));
    }
    if (isReal(number)) {
        return PlistValue([number doubleValue]);
    }
    return PlistValue(static_cast<std::int64_t>([number longLongValue]));
}

PlistValue toPlistArray(NSArray *array) {
    PlistArray values;
    values.reserve([array count]);
    for (id element in array) {
        if (auto value = toPlistValue(element)) {
            values.push_back(*std::move(value));
        }
    }
    return PlistValue(std::move(values));
}

PlistValue toPlistDictionary(NSDictionary *dictionary) {
    PlistDictionary values;
    for (id key in dictionary) {
        auto value = toPlistValue([dictionary objectForKey:key]);
        if (value && [key isKindOfClass:[NSString class]]) {
            values.insert_or_assign(toString(key), *std::move(value));
        }
    }
    return PlistValue(std::move(values));
}

NSArray *toNSArray(const PlistArray &array) {
    NSMutableArray *result = [NSMutableArray arrayWithCapacity:array.size()];
    for (const auto &value : array) {
        [result addObject:toObject(value)];
    }
    return result;
}

NSDictionary *toNSDictionary(const PlistDictionary &dictionary) {
    NSMutableDictionary *result = [NSMutableDictionary dictionaryWithCapacity:dictionary.size()];
    for (const auto &[key, value] : dictionary) {
        [result setObject:toObject(value) forKey:toNSString(key)];
    }
    return result;
}

} // namespace

std::optional<PlistValue> toPlistValue(id object) {
    if ([object isKindOfClass:[NSString class]]) {
        return PlistValue(toString(object));
    }
    if ([object isKindOfClass:[NSNumber class]]) {
        return toPlistNumber(object);
    }
    if ([object isKindOfClass:[NSData class]]) {
        return PlistValue(toPlistData(object));
    }
    if ([object isKindOfClass:[NSDate class]]) {
        return PlistValue(PlistDate{[object timeIntervalSinceReferenceDate]});
    }
    if ([object isKindOfClass:[NSArray class]]) {
        return toPlistArray(object);
    }
    if ([object isKindOfClass:[NSDictionary class]]) {
        return toPlistDictionary(object);
    }
    return std::nullopt;
}

id toObject(const PlistValue &value) {
    if (const auto *text = value.string()) {
        return toNSString(*text);
    }
    if (const auto *number = value.integer()) {
        return [NSNumber numberWithLongLong:*number];
    }
    if (const auto *number = value.real()) {
        return [NSNumber numberWithDouble:*number];
    }
    if (const auto *flag = value.boolean()) {
        return [NSNumber numberWithBool:*flag];
    }
    if (const auto *data = value.data()) {
        return toNSData(*data);
    }
    if (const auto *date = value.date()) {
        return [NSDate dateWithTimeIntervalSinceReferenceDate:date->secondsSinceReferenceDate];
    }
    if (const auto *array = value.array()) {
        return toNSArray(*array);
    }
    return toNSDictionary(*value.dictionary());
}

PlistData toPlistData(NSData *data) {
    // An immutable copy, which for data that cannot change is the data itself.
    NSData *fixed = [data copy];
    const auto *bytes = static_cast<const std::uint8_t *>([fixed bytes]);
    const std::shared_ptr<const void> owner(fixed, [](const void *object) { [(NSData *)object release]; });
    return PlistData(owner, bytes, [fixed length]);
}

NSData *toNSData(const PlistData &data) {
    return [[[TNSharedData alloc] initWithPlistData:data] autorelease];
}

} // namespace tarnwick
