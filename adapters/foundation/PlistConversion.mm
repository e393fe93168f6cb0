#import "adapters/foundation/PlistConversion.h"

#import "adapters/foundation/StringConversion.h"

#include <array>
#include <functional>
#include <limits>
#include <memory>
#include <vector>

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

/// Makes the objects of one value. The keys of records are the same again and again, and are made once.
class ObjectMaker {
public:
    ObjectMaker() = default;
    ~ObjectMaker() {
        for (const auto &known : knownKeys_) {
            [known.object release];
        }
    }
    ObjectMaker(const ObjectMaker &) = delete;
    ObjectMaker &operator=(const ObjectMaker &) = delete;

    /// A reference to be released.
    id newObject(const PlistValue &value) {
        if (const auto *text = value.string()) {
            return [toNSString(*text) retain];
        }
        if (const auto *number = value.integer()) {
            return [[classes().number numberWithLongLong:*number] retain];
        }
        if (const auto *number = value.largeInteger()) {
            return [[classes().number numberWithUnsignedLongLong:number->number] retain];
        }
        if (const auto *number = value.real()) {
            return [[classes().number numberWithDouble:*number] retain];
        }
        if (const auto *flag = value.boolean()) {
            return [[classes().number numberWithBool:*flag] retain];
        }
        if (const auto *data = value.data()) {
            return [toNSData(*data) retain];
        }
        if (const auto *date = value.date()) {
            return [[classes().date alloc]
                initWithTimeIntervalSinceReferenceDate:date->secondsSinceReferenceDate];
        }
        if (const auto *array = value.array()) {
            return newArray(*array);
        }
        return newDictionary(*value.dictionary());
    }

private:
    struct KnownKey {
        std::string text;
        NSString *object = nil;
    };

    NSArray *newArray(const PlistArray &array) {
        std::vector<id> elements;
        elements.reserve(array.size());
        for (const auto &value : array) {
            elements.push_back(newObject(value));
        }
        NSArray *result = [[classes().array alloc] initWithObjects:elements.data() count:elements.size()];
        for (id element : elements) {
            [element release];
        }
        return result;
    }

    NSDictionary *newDictionary(const PlistDictionary &dictionary) {
        std::vector<id> values;
        std::vector<id> keys;
        values.reserve(dictionary.size());
        keys.reserve(dictionary.size());
        for (const auto &[key, value] : dictionary) {
            values.push_back(newObject(value));
            keys.push_back([keyOf(key) retain]);
        }
        NSDictionary *result = [[classes().dictionary alloc] initWithObjects:values.data()
                                                                     forKeys:keys.data()
                                                                       count:keys.size()];
        for (std::size_t index = 0; index < keys.size(); ++index) {
            [values[index] release];
            [keys[index] release];
        }
        return result;
    }

    NSString *keyOf(const std::string &text) {
        auto &known = knownKeys_[std::hash<std::string>()(text) % knownKeys_.size()];
        if (!known.object || known.text != text) {
            [known.object release];
            known = {text, [toNSString(text) retain]};
        }
        return known.object;
    }

    std::array<KnownKey, 64> knownKeys_;
};

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
