#include "PropertyListProbe.h"

#import "ListDescription.h"

#import "gnustep/defaults/PropertyListValues.h"

#import <Foundation/Foundation.h>

namespace tarnwick::probe {
namespace {

NSData *dataOf(const std::string &bytes) {
    return [NSData dataWithBytes:bytes.data() length:bytes.size()];
}

id valueOf(NSData *data, NSPropertyListReadOptions options, NSError **error = nullptr) {
    return [NSPropertyListSerialization propertyListWithData:data options:options format:nullptr error:error];
}

NSData *written(id list, NSError **error = nullptr) {
    return [NSPropertyListSerialization dataWithPropertyList:list
                                                      format:NSPropertyListXMLFormat_v1_0
                                                     options:0
                                                       error:error];
}

std::string bytesOf(NSData *data) {
    return {static_cast<const char *>([data bytes]), [data length]};
}

/// Behind the words that all of them begin with.
std::string problemOf(NSError *error) {
    const std::string text = [[error localizedDescription] UTF8String];
    return text.substr(text.find(": ") + 2);
}

std::string elementsOf(id list) {
    NSError *error = nil;
    NSData *data = written(list, &error);
    if (!data) {
        return "refused: " + problemOf(error);
    }
    const std::string start = "<plist version=\"1.0\">\n";
    const std::string end = "</plist>\n";
    const auto bytes = bytesOf(data);
    const auto place = bytes.find(start) + start.size();
    return bytes.substr(place, bytes.size() - end.size() - place);
}

id listOf(const std::string &text) {
    return valueOf(dataOf(text), NSPropertyListImmutable);
}

NSMutableString *textOf(char letter, std::size_t count) {
    return [NSMutableString stringWithUTF8String:std::string(count, letter).c_str()];
}

NSDictionary *contentWith(char letter, std::size_t count) {
    return [NSDictionary dictionaryWithObject:[[textOf(letter, count) copy] autorelease] forKey:@"key"];
}

constexpr std::size_t large = 100'000;

} // namespace

std::string readList(const std::string &bytes) {
    @autoreleasepool {
        NSError *error = nil;
        id list = valueOf(dataOf(bytes), NSPropertyListImmutable, &error);
        return list ? descriptionOf(list) : "damaged: " + problemOf(error);
    }
}

std::string readElements(const std::string &elements) {
    return readList(
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?><plist version=\"1.0\">" + elements + "</plist>");
}

std::string changeableParts(Containers containers) {
    @autoreleasepool {
        std::string parts;
        for (const auto options :
            {containers == Containers::fixed ? NSPropertyListImmutable : NSPropertyListMutableContainers,
                containers == Containers::fixed ? NSPropertyListImmutable
                                                : NSPropertyListMutableContainersAndLeaves}) {
            NSArray *list = valueOf(
                dataOf("<plist><array><string>a</string><data>YQ==</data><dict/></array></plist>"), options);
            parts += [list isKindOfClass:[NSMutableArray class]] ? "array " : "";
            parts += [[list objectAtIndex:0] isKindOfClass:[NSMutableString class]] ? "text " : "";
            parts += [[list objectAtIndex:1] isKindOfClass:[NSMutableData class]] ? "data " : "";
            parts += [[list objectAtIndex:2] isKindOfClass:[NSMutableDictionary class]] ? "dictionary " : "";
            parts += "/ ";
        }
        return parts;
    }
}

std::string writtenElements(const std::string &list) {
    @autoreleasepool {
        return elementsOf(listOf(list));
    }
}

std::string writtenText(const std::u16string &units) {
    @autoreleasepool {
        // Halves of characters come into texts one by one.
        NSMutableString *text = [NSMutableString string];
        for (const auto unit : units) {
            [text appendFormat:@"%C", static_cast<unichar>(unit)];
        }
        return elementsOf(text);
    }
}

std::string writtenReal(double number) {
    @autoreleasepool {
        return elementsOf([NSNumber numberWithDouble:number]);
    }
}

std::string writtenDate(double seconds) {
    @autoreleasepool {
        return elementsOf([NSDate dateWithTimeIntervalSinceReferenceDate:seconds]);
    }
}

std::string writtenNest(int depth) {
    @autoreleasepool {
        id list = [NSArray array];
        for (int level = 1; level < depth; ++level) {
            list = [NSArray arrayWithObject:list];
        }
        return elementsOf(list);
    }
}

std::string writtenForeignObject() {
    @autoreleasepool {
        return elementsOf([NSArray arrayWithObject:[NSNull null]]);
    }
}

std::string writtenNumberAsKey() {
    @autoreleasepool {
        return elementsOf([NSDictionary dictionaryWithObject:@"value" forKey:[NSNumber numberWithInt:1]]);
    }
}

std::string serialised(char letter, std::size_t count) {
    @autoreleasepool {
        return bytesOf(written(contentWith(letter, count)));
    }
}

const void *parsed(const std::string &bytes, Containers containers) {
    @autoreleasepool {
        const auto options =
            containers == Containers::fixed ? NSPropertyListImmutable : NSPropertyListMutableContainers;
        return [valueOf(dataOf(bytes), options) retain];
    }
}

std::string parsedText(const std::string &bytes) {
    @autoreleasepool {
        return [[valueOf(dataOf(bytes), NSPropertyListImmutable) objectForKey:@"key"] UTF8String];
    }
}

bool readsBackTheWrittenObjects() {
    @autoreleasepool {
        NSDictionary *content = contentWith('w', large);
        NSDictionary *read = valueOf(written(content), NSPropertyListImmutable);
        return [read objectForKey:@"key"] == [content objectForKey:@"key"];
    }
}

bool readsBackWhatWasWrittenAndNotWhatChanged() {
    @autoreleasepool {
        NSMutableString *text = textOf('b', large);
        NSDictionary *content = [NSDictionary dictionaryWithObject:[NSArray arrayWithObject:text]
                                                            forKey:@"key"];
        NSData *bytes = written(content);
        [text setString:@"after"];
        NSDictionary *read = valueOf(bytes, NSPropertyListImmutable);
        return [[[read objectForKey:@"key"] objectAtIndex:0] isEqualToString:textOf('b', large)];
    }
}

bool readsAnewWhatXMLCannotHold() {
    @autoreleasepool {
        NSMutableString *text = textOf('c', large);
        [text appendFormat:@"%C", static_cast<unichar>(1)];
        NSString *read = valueOf(written([[text copy] autorelease]), NSPropertyListImmutable);
        return [read
            isEqualToString:[textOf('c', large) stringByAppendingFormat:@"%C", static_cast<unichar>(0xFFFD)]];
    }
}

bool keepsWhatCannotChange() {
    @autoreleasepool {
        NSDictionary *list = listOf("{ a = (text, <*I1>, <*BY>, <61>, <*R2.5>); b = { c = (); }; }");
        return TNFrozenCopy(list) == list;
    }
}

bool copiesWhatCanChange() {
    @autoreleasepool {
        NSMutableString *text = [NSMutableString stringWithString:@"before"];
        NSArray *other = [NSArray arrayWithObject:@"other"];
        NSArray *list = [NSArray arrayWithObjects:[NSArray arrayWithObject:text], other, nil];
        NSArray *copy = TNFrozenCopy(list);
        [text setString:@"after"];
        return [[[copy objectAtIndex:0] objectAtIndex:0] isEqualToString:@"before"] &&
               [copy objectAtIndex:1] == other;
    }
}

bool areSame(const std::string &one, const std::string &other) {
    @autoreleasepool {
        return TNIsSamePropertyList(listOf(one), listOf(other));
    }
}

} // namespace tarnwick::probe
