// Missing: a serialization that can be relied on, as of GNUstep Base 1.28. All property lists of the program
// pass here. XML is written and read by this layer, and what was just written or read is not read again.

#import "gnustep/defaults/FileReplacement.h"
#import "gnustep/defaults/PropertyListValues.h"
#import "gnustep/defaults/XMLListReader.h"
#import "gnustep/defaults/XMLListWriter.h"
#import "gnustep/runtime/MethodReplacement.h"

#include "gnustep/defaults/ToolkitForms.h"

#import <Foundation/Foundation.h>

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>

/// The bytes of a list that was written. As a settings file they take the old one's place only when they are
/// on the disk, so that after a power failure too one or the other is there.
@interface TNWrittenList : NSData {
@private
    std::string _content;
}
- (instancetype)initWithContent:(std::string &&)content;
@end

@implementation TNWrittenList

- (instancetype)initWithContent:(std::string &&)content {
    self = [super init];
    if (self) {
        _content = std::move(content);
    }
    return self;
}

/// Where the toolkit's `init` leads: the bytes are given afterwards.
- (instancetype)initWithBytesNoCopy:(void *)bytes length:(NSUInteger)length freeWhenDone:(BOOL)freeWhenDone {
    return self;
}

- (NSUInteger)length {
    return _content.size();
}

- (const void *)bytes {
    return _content.data();
}

- (id)copyWithZone:(NSZone *)zone {
    return [self retain];
}

/// By this one NSUserDefaults writes the file of a domain.
- (BOOL)writeToFile:(NSString *)path atomically:(BOOL)atomically {
    if (atomically && TNIsSettingsFile(path)) {
        return TNReplaceFile(path, self);
    }
    return [super writeToFile:path atomically:atomically];
}

@end

namespace {

using Read = id (*)(id self, SEL command, NSData *data, NSPropertyListReadOptions options,
    NSPropertyListFormat *format, NSError **error);
using Write = NSData *(*)(id self, SEL command, id value, NSPropertyListFormat format, NSUInteger options,
    NSError **error);

Read nativeRead = nullptr;
Write nativeWrite = nullptr;

constexpr NSInteger corruptError = 3840;
constexpr NSInteger invalidError = 3852;

/// Smaller lists are read in no time.
constexpr std::size_t worthRemembering = 16 * 1024;

/// Bytes, and the list that they are. It cannot be changed.
struct KnownList {
    NSData *bytes = nil;
    id value = nil;
};

/// The latest two: the standard domain and a suite are written in turns.
std::array<KnownList, 2> knownLists;

void remember(NSData *bytes, id value) {
    if ([bytes length] < worthRemembering) {
        return;
    }
    @synchronized([NSPropertyListSerialization class]) {
        auto &older = knownLists.back();
        [older.bytes release];
        [older.value release];
        older = std::exchange(knownLists.front(), {[bytes copy], [value retain]});
    }
}

id knownValueOf(NSData *bytes) {
    @synchronized([NSPropertyListSerialization class]) {
        for (const auto &known : knownLists) {
            if (known.value && [known.bytes isEqualToData:bytes]) {
                return [[known.value retain] autorelease];
            }
        }
    }
    return nil;
}

void describe(NSError **error, NSInteger code, const char *problem) {
    if (error) {
        NSString *text = [NSString stringWithFormat:@"This is no property list: %s", problem];
        *error = [NSError errorWithDomain:NSCocoaErrorDomain
                                     code:code
                                 userInfo:[NSDictionary dictionaryWithObject:text
                                                                      forKey:NSLocalizedDescriptionKey]];
    }
}

/// Whether these are the bytes of a property list in XML, damaged or not.
bool isXML(NSData *data) {
    std::string_view bytes(static_cast<const char *>([data bytes]), [data length]);
    constexpr std::array<std::string_view, 2> wideMarks = {"\xFE\xFF", "\xFF\xFE"};
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    const auto startsWith = [&bytes](
                                std::string_view start) { return bytes.substr(0, start.size()) == start; };
    if (std::any_of(wideMarks.begin(), wideMarks.end(), startsWith)) {
        return true;
    }
    if (startsWith(mark)) {
        bytes.remove_prefix(mark.size());
    }
    bytes.remove_prefix(std::min(bytes.find_first_not_of(" \t\r\n"), bytes.size()));
    return startsWith("<?") || startsWith("<!") || startsWith("<plist");
}

id readXML(NSData *data, NSPropertyListReadOptions options, NSError **error) {
    const bool isPlain = options == NSPropertyListImmutable;
    if (id known = isPlain ? knownValueOf(data) : nil) {
        return known;
    }
    const auto list = TNReadXMLList(data, options);
    if (!list.value) {
        describe(error, corruptError, list.problem.c_str());
    } else if (isPlain) {
        remember(data, list.value);
    }
    return list.value;
}

/// What the toolkit makes of its own forms, when that could be written again.
id readOtherForm(id self, SEL command, NSData *data, NSPropertyListReadOptions options,
    NSPropertyListFormat *format, NSError **error) {
    if (!tarnwick::toolkitSurvives(static_cast<const std::uint8_t *>([data bytes]), [data length])) {
        describe(error, corruptError, "it nests too deep, or it is damaged");
        return nil;
    }
    id value = nil;
    @try {
        value = nativeRead(self, command, data, options, format, error);
    } @catch (NSException *) {
        // It raises for some of the contents that it refuses, and is silent about others.
    }
    TNXMLListWriter writer;
    if (!value) {
        describe(error, corruptError, "it is damaged");
    } else if (!writer.write(value)) {
        describe(error, corruptError, writer.problem());
        return nil;
    }
    return value;
}

id readList(id self, SEL command, NSData *data, NSPropertyListReadOptions options,
    NSPropertyListFormat *format, NSError **error) {
    if (!isXML(data)) {
        return readOtherForm(self, command, data, options, format, error);
    }
    if (format) {
        *format = NSPropertyListXMLFormat_v1_0;
    }
    return readXML(data, options, error);
}

NSData *writeList(
    id self, SEL command, id value, NSPropertyListFormat format, NSUInteger options, NSError **error) {
    if (format != NSPropertyListXMLFormat_v1_0 || !value) {
        return nativeWrite(self, command, value, format, options, error);
    }
    TNXMLListWriter writer;
    if (!writer.write(value)) {
        describe(error, invalidError, writer.problem());
        return nil;
    }
    NSData *data = [[[TNWrittenList alloc] initWithContent:std::move(writer.bytes())] autorelease];
    if (writer.isExact()) {
        remember(data, writer.hasMutableParts() ? TNFrozenCopy(value) : [[value copy] autorelease]);
    }
    return data;
}

} // namespace

@interface NSPropertyListSerialization (TNSerialization)
@end

@implementation NSPropertyListSerialization (TNSerialization)

+ (void)load {
    @autoreleasepool {
        // The first message has a class set itself up, which it misses when its methods were replaced before.
        Class type = object_getClass([NSPropertyListSerialization class]);
        nativeRead = TNReplaceMethod(type, @selector(propertyListWithData:options:format:error:), readList);
        nativeWrite = TNReplaceMethod(type, @selector(dataWithPropertyList:format:options:error:), writeList);
    }
}

@end
