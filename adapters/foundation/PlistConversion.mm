#import "adapters/foundation/PlistConversion.h"

#import "adapters/foundation/ObjectMaker.h"
#import "adapters/foundation/StringConversion.h"

#include <limits>
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

/// Looked up once: asking for a class by its name takes longer than the question.
struct Classes {
    Class string = [NSString class];
    Class number = [NSNumber class];
    /// Booleans are of a class of their own on both platforms.
    Class boolean = [[NSNumber numberWithBool:YES] class];
    Class data = [NSData class];
    Class date = [NSDate class];
    Class array = [NSArray class];
    Class dictionary = [NSDictionary class];
};

const Classes &classes() {
    static const Classes known;
    return known;
}

PlistValue toPlistNumber(NSNumber *number) {
    if ([number isKindOfClass:classes().boolean]) {
        return PlistValue(static_cast<bool>([number boolValue]));
    }
    const char type = *[number objCType];
    if (type == *@encode(float) || type == *@encode(double)) {
        return PlistValue([number doubleValue]);
    }
    const std::uint64_t bits = [number unsignedLongLongValue];
    const bool isUnsigned = type == *@encode(unsigned long) || type == *@encode(unsigned long long);
    if (isUnsigned && bits > std::numeric_limits<std::int64_t>::max()) {
        return PlistValue(PlistLargeInteger{bits});
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
        if (value && [key isKindOfClass:classes().string]) {
            values.insert_or_assign(toString(key), *std::move(value));
        }
    }
    return PlistValue(std::move(values));
}

} // namespace

std::optional<PlistValue> toPlistValue(id object) {
    const auto &known = classes();
    if ([object isKindOfClass:known.string]) {
        return PlistValue(toString(object));
    }
    if ([object isKindOfClass:known.number]) {
        return toPlistNumber(object);
    }
    if ([object isKindOfClass:known.dictionary]) {
        return toPlistDictionary(object);
    }
    if ([object isKindOfClass:known.data]) {
        return PlistValue(toPlistData(object));
    }
    if ([object isKindOfClass:known.array]) {
        return toPlistArray(object);
    }
    if ([object isKindOfClass:known.date]) {
        return PlistValue(PlistDate{[object timeIntervalSinceReferenceDate]});
    }
    return std::nullopt;
}

id toObject(const PlistValue &value) {
    return [ObjectMaker().newObject(value) autorelease];
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
