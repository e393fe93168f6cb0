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

/// A place for many more classes than a property list has; a class that finds its place taken takes it over.
thread_local std::array<Known, 64> knownTypes;

} // namespace

TNListType TNListTypeOf(id value) {
    Class type = object_getClass(value);
    if (!type) {
        return {};
    }
    // Classes are a few hundred bytes long.
    auto &known = knownTypes[(reinterpret_cast<std::uintptr_t>(type) >> 6) % knownTypes.size()];
    if (known.type != type) {
        known = {type, lookedUp(value)};
    }
    return known.listType;
}
