// Missing: thrift, as of GNUstep Base 1.28, whose NSUserDefaults parses the whole file of a domain again
// before it writes it, and whenever another file of the folder has changed. The bytes just read or written
// are not parsed twice.

#import "gnustep/defaults/ParsedSettings.h"

#import "gnustep/runtime/MethodReplacement.h"

#import <Foundation/Foundation.h>

#include <functional>
#include <string_view>

namespace {

using WithData = id (*)(id self, SEL command, NSData *data, NSPropertyListReadOptions options,
    NSPropertyListFormat *format, NSError **error);

WithData nativeWithData = nullptr;

/// Smaller ones are parsed in no time.
constexpr std::size_t worthRemembering = 16 * 1024;

/// The hash stands for the bytes, which would take as much memory again as the values.
struct Parsed {
    std::size_t length = 0;
    std::size_t hash = 0;
    id value = nil;
};

Parsed latest;

std::size_t hashOf(NSData *bytes) {
    return std::hash<std::string_view>()({static_cast<const char *>([bytes bytes]), [bytes length]});
}

/// Values that may be changed in place, and formats that are asked for, come from the parser.
id withData(id self, SEL command, NSData *data, NSPropertyListReadOptions options,
    NSPropertyListFormat *format, NSError **error) {
    const bool isPlain = options == NSPropertyListImmutable && !format;
    @synchronized(self) {
        if (isPlain && latest.value && [data length] == latest.length && hashOf(data) == latest.hash) {
            return [[latest.value retain] autorelease];
        }
    }
    id value = nativeWithData(self, command, data, options, format, error);
    if (isPlain) {
        TNRememberParsed(data, value);
    }
    return value;
}

} // namespace

void TNRememberParsed(NSData *bytes, id value) {
    if ([bytes length] < worthRemembering || !value) {
        return;
    }
    @synchronized([NSPropertyListSerialization class]) {
        id previous = latest.value;
        latest = {[bytes length], hashOf(bytes), [value copy]};
        [previous release];
    }
}

void TNKeepParsedSettings() {
    if (nativeWithData) {
        return;
    }
    // The first message has a class set itself up, which it misses when its methods were replaced before.
    Class type = [NSPropertyListSerialization class];
    nativeWithData = TNReplaceMethod(
        object_getClass(type), @selector(propertyListWithData:options:format:error:), withData);
}
