#import "gnustep/defaults/PropertyListKinds.h"

#import <Foundation/Foundation.h>

#include <array>
#include <cstdint>

namespace {

TNListKind kindOfNumber(NSNumber *number) {
    static Class const booleanClass = [[NSNumber numberWithBool:YES] class];
    if ([number isKindOfClass:booleanClass]) {
        return TNListKind::boolean;
    }
    const char type = *[number objCType];
    if (type == *@encode(float) || type == *@encode(double)) {
        return TNListKind::real;
    }
    return type == *@encode(unsigned long) || type == *@encode(unsigned long long)
               ? TNListKind::unsignedInteger
               : TNListKind::integer;
}

TNListType lookedUp(id value) {
    if ([value isKindOfClass:[NSString class]]) {
        return {TNListKind::string, bool([value isKindOfClass:[NSMutableString class]])};
    }
    if ([value isKindOfClass:[NSNumber class]]) {
        return {kindOfNumber(value), false};
    }
    if ([value isKindOfClass:[NSDictionary class]]) {
        return {TNListKind::dictionary, bool([value isKindOfClass:[NSMutableDictionary class]])};
    }
    if ([value isKindOfClass:[NSArray class]]) {
        return {TNListKind::array, bool([value isKindOfClass:[NSMutableArray class]])};
    }
    if ([value isKindOfClass:[NSData class]]) {
        return {TNListKind::data, bool([value isKindOfClass:[NSMutableData class]])};
    }
    return {[value isKindOfClass:[NSDate class]] ? TNListKind::date : TNListKind::none, false};
}

struct Known {
    Class type = Nil;
    TNListType listType;
};

constexpr unsigned tableBits = 8;

/// A place for many more classes than a property list has; a class that finds its place taken takes it over.
thread_local std::array<Known, 1U << tableBits> knownTypes;

/// Spreads addresses of equal distances over the table.
std::size_t placeOf(Class type) {
    constexpr std::uint64_t factor = 0x9E3779B97F4A7C15;
    return reinterpret_cast<std::uintptr_t>(type) * factor >> (64 - tableBits);
}

} // namespace

TNListType TNListTypeOf(id value) {
    Class type = object_getClass(value);
    if (!type) {
        return {};
    }
    auto &known = knownTypes[placeOf(type)];
    if (known.type != type) {
        known = {type, lookedUp(value)};
    }
    return known.listType;
}
