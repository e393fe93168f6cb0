// Missing: equality that tells a boolean from a number, and a letter with an accent from a letter and an
// accent, as of GNUstep Base 1.28, where they are equal; and a cheap deep copy.

#import "gnustep/defaults/PropertyListValues.h"

#import "gnustep/defaults/PropertyListKinds.h"

#import <Foundation/Foundation.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace {

/// Those whose parts are all as they were stay as they are.
NSArray *frozenArray(NSArray *array, bool isMutable) {
    std::vector<id> elements;
    elements.reserve([array count]);
    bool differs = isMutable;
    for (id element in array) {
        id frozen = TNFrozenCopy(element);
        if (!frozen) {
            return nil;
        }
        differs = differs || frozen != element;
        elements.push_back(frozen);
    }
    return differs ? [NSArray arrayWithObjects:elements.data() count:elements.size()] : array;
}

NSDictionary *frozenDictionary(NSDictionary *dictionary, bool isMutable) {
    std::vector<id> keys;
    std::vector<id> values;
    bool differs = isMutable;
    for (id key in dictionary) {
        id value = [dictionary objectForKey:key];
        id frozen = TNFrozenCopy(value);
        if (!frozen || TNListTypeOf(key).kind != TNListKind::string) {
            return nil;
        }
        differs = differs || frozen != value;
        keys.push_back(key);
        values.push_back(frozen);
    }
    return differs ? [NSDictionary dictionaryWithObjects:values.data() forKeys:keys.data() count:keys.size()]
                   : dictionary;
}

bool isSameText(NSString *one, NSString *other) {
    const NSUInteger length = [one length];
    if (length != [other length]) {
        return false;
    }
    constexpr NSUInteger portion = 256;
    std::array<unichar, portion> mine;
    std::array<unichar, portion> theirs;
    for (NSUInteger place = 0; place < length; place += portion) {
        const NSRange range = NSMakeRange(place, std::min(portion, length - place));
        [one getCharacters:mine.data() range:range];
        [other getCharacters:theirs.data() range:range];
        if (!std::equal(mine.begin(), mine.begin() + range.length, theirs.begin())) {
            return false;
        }
    }
    return true;
}

/// A number that is none is the same as itself, and there are two zeros.
bool isSameNumber(double one, double other) {
    return std::isnan(one) ? bool(std::isnan(other))
                           : one == other && std::signbit(one) == std::signbit(other);
}

bool isUnsigned(TNListKind kind) {
    return kind == TNListKind::unsignedInteger;
}

bool isInteger(TNListKind kind) {
    return kind == TNListKind::integer || isUnsigned(kind);
}

bool isSameInteger(NSNumber *one, bool oneIsUnsigned, NSNumber *other, bool otherIsUnsigned) {
    // The same bits mean another number only where one is negative and the other beyond all signed ones.
    const long long bits = [one longLongValue];
    return bits == [other longLongValue] && (oneIsUnsigned == otherIsUnsigned || bits >= 0);
}

bool isSameArray(NSArray *one, NSArray *other) {
    if ([one count] != [other count]) {
        return false;
    }
    NSUInteger index = 0;
    for (id element in one) {
        if (!TNIsSamePropertyList(element, [other objectAtIndex:index++])) {
            return false;
        }
    }
    return true;
}

bool isSameDictionary(NSDictionary *one, NSDictionary *other) {
    if ([one count] != [other count]) {
        return false;
    }
    for (id key in one) {
        if (!TNIsSamePropertyList([one objectForKey:key], [other objectForKey:key])) {
            return false;
        }
    }
    return true;
}

} // namespace

id TNFrozenCopy(id value) {
    const auto type = TNListTypeOf(value);
    switch (type.kind) {
    case TNListKind::array:
        return frozenArray(value, type.isMutable);
    case TNListKind::dictionary:
        return frozenDictionary(value, type.isMutable);
    case TNListKind::none:
        return nil;
    default:
        return type.isMutable ? [[value copy] autorelease] : value;
    }
}

bool TNIsSamePropertyList(id one, id other) {
    if (one == other) {
        return true;
    }
    if (!one || !other) {
        return false;
    }
    const auto kind = TNListTypeOf(one).kind;
    const auto otherKind = TNListTypeOf(other).kind;
    if (isInteger(kind) && isInteger(otherKind)) {
        return isSameInteger(one, isUnsigned(kind), other, isUnsigned(otherKind));
    }
    if (kind != otherKind) {
        return false;
    }
    switch (kind) {
    case TNListKind::string:
        return isSameText(one, other);
    case TNListKind::real:
        return isSameNumber([one doubleValue], [other doubleValue]);
    case TNListKind::date:
        return isSameNumber([one timeIntervalSinceReferenceDate], [other timeIntervalSinceReferenceDate]);
    case TNListKind::array:
        return isSameArray(one, other);
    case TNListKind::dictionary:
        return isSameDictionary(one, other);
    default:
        return [one isEqual:other];
    }
}
