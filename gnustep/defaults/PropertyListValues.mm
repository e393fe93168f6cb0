// Missing: equality that tells a boolean from a number, as of GNUstep Base 1.28, where the two are equal; and
// a cheap deep copy: parsing what was serialised, the other way to copy, takes seconds for a long list.

#import "gnustep/defaults/PropertyListValues.h"

#include "gnustep/defaults/NestingDepth.h"

#import <Foundation/Foundation.h>

namespace {

/// Far deeper than any settings are, and far from the end of the stack.
constexpr std::size_t deepestNesting = 200;

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

/// What XML, in which settings files are written, cannot hold: a file with one of these could not be read
/// again.
NSCharacterSet *unstorableCharacters() {
    static NSCharacterSet *characters = nil;
    if (!characters) {
        NSMutableCharacterSet *set = [[NSMutableCharacterSet alloc] init];
        [set addCharactersInRange:NSMakeRange(0, ' ')];
        [set removeCharactersInString:@"\t\n\r"];
        [set addCharactersInRange:NSMakeRange(0xFFFE, 2)];
        characters = set;
    }
    return characters;
}

bool isStorable(id value) {
    switch (kindOf(value)) {
    case Kind::string:
        return [value rangeOfCharacterFromSet:unstorableCharacters()].location == NSNotFound;
    case Kind::array:
        for (id element in value) {
            if (!isStorable(element)) {
                return false;
            }
        }
        return true;
    case Kind::dictionary:
        for (id key in value) {
            if (!isStorable(key) || !isStorable([value objectForKey:key])) {
                return false;
            }
        }
        return true;
    default:
        return true;
    }
}

NSString *storableText(NSString *text) {
    NSMutableString *result = [[text mutableCopy] autorelease];
    NSRange found;
    while ((found = [result rangeOfCharacterFromSet:unstorableCharacters()]).location != NSNotFound) {
        [result replaceCharactersInRange:found withString:@"\uFFFD"];
    }
    return result;
}

id storableCopy(id value) {
    switch (kindOf(value)) {
    case Kind::string:
        return storableText(value);
    case Kind::array: {
        NSMutableArray *copy = [NSMutableArray array];
        for (id element in value) {
            [copy addObject:storableCopy(element)];
        }
        return copy;
    }
    case Kind::dictionary: {
        NSMutableDictionary *copy = [NSMutableDictionary dictionary];
        for (id key in value) {
            [copy setObject:storableCopy([value objectForKey:key]) forKey:storableCopy(key)];
        }
        return copy;
    }
    default:
        return value;
    }
}

} // namespace

id TNStorable(id value) {
    return isStorable(value) ? value : storableCopy(value);
}

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
    if ([content length] == 0 || !tarnwick::nestsAtMost(deepestNesting,
                                     static_cast<const std::uint8_t *>([content bytes]), [content length])) {
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
