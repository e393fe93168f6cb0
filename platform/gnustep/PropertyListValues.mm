// Missing: equality that tells a boolean from a number, as of GNUstep Base 1.28, where the two are equal; and
// a cheap deep copy: parsing what was serialised, the other way to copy, takes seconds for a long list.

#import "PropertyListValues.h"

#import <Foundation/Foundation.h>

namespace {

enum class Kind { boolean, integer, real, string, data, date, array, dictionary, none };

Kind kindOfNumber(NSNumber *number) {
    if ([number isKindOfClass:[[NSNumber numberWithBool:YES] class]]) {
        return Kind::boolean;
    }
    const char type = *[number objCType];
    return type == *@encode(float) || type == *@encode(double) ? Kind::real : Kind::integer;
}

Kind kindOf(id value) {
    if ([value isKindOfClass:[NSNumber class]]) {
        return kindOfNumber(value);
    }
    if ([value isKindOfClass:[NSString class]]) {
        return Kind::string;
    }
    if ([value isKindOfClass:[NSData class]]) {
        return Kind::data;
    }
    if ([value isKindOfClass:[NSDate class]]) {
        return Kind::date;
    }
    if ([value isKindOfClass:[NSArray class]]) {
        return Kind::array;
    }
    return [value isKindOfClass:[NSDictionary class]] ? Kind::dictionary : Kind::none;
}

NSArray *frozenArray(NSArray *array) {
    NSMutableArray *copy = [NSMutableArray arrayWithCapacity:[array count]];
    for (id element in array) {
        id frozen = TNFrozenCopy(element);
        if (!frozen) {
            return nil;
        }
        [copy addObject:frozen];
    }
    return copy;
}

NSDictionary *frozenDictionary(NSDictionary *dictionary) {
    NSMutableDictionary *copy = [NSMutableDictionary dictionaryWithCapacity:[dictionary count]];
    for (id key in dictionary) {
        id frozen = TNFrozenCopy([dictionary objectForKey:key]);
        if (!frozen || kindOf(key) != Kind::string) {
            return nil;
        }
        [copy setObject:frozen forKey:key];
    }
    return copy;
}

bool isSameArray(NSArray *one, NSArray *other) {
    if ([one count] != [other count]) {
        return false;
    }
    for (NSUInteger index = 0; index < [one count]; ++index) {
        if (!TNIsSamePropertyList([one objectAtIndex:index], [other objectAtIndex:index])) {
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
    switch (kindOf(value)) {
    case Kind::array:
        return frozenArray(value);
    case Kind::dictionary:
        return frozenDictionary(value);
    case Kind::none:
        return nil;
    default:
        return [[value copy] autorelease];
    }
}

bool TNIsSamePropertyList(id one, id other) {
    if (one == other) {
        return true;
    }
    const auto kind = kindOf(one);
    if (!one || !other || kind != kindOf(other)) {
        return false;
    }
    switch (kind) {
    case Kind::array:
        return isSameArray(one, other);
    case Kind::dictionary:
        return isSameDictionary(one, other);
    default:
        return [one isEqual:other];
    }
}

NSDictionary *TNDictionaryInFile(NSString *path) {
    NSData *content = [NSData dataWithContentsOfFile:path];
    if ([content length] == 0) {
        return nil;
    }
    id propertyList = nil;
    @try {
        propertyList = [NSPropertyListSerialization propertyListWithData:content
                                                                 options:NSPropertyListImmutable
                                                                  format:nullptr
                                                                   error:nullptr];
    } @catch (NSException *) {
        // The parser raises for some of the contents that it refuses.
        propertyList = nil;
    }
    return [propertyList isKindOfClass:[NSDictionary class]] ? propertyList : nil;
}
