#include "ParsedSettingsProbe.h"

#import <Foundation/Foundation.h>

namespace tarnwick::probe {
namespace {

NSData *dataOf(const std::string &bytes) {
    return [NSData dataWithBytes:bytes.data() length:bytes.size()];
}

NSDictionary *contentWith(char letter, std::size_t count) {
    return
        [NSDictionary dictionaryWithObject:[NSString stringWithUTF8String:std::string(count, letter).c_str()]
                                    forKey:@"key"];
}

/// As the standard domain is written.
NSData *written(NSDictionary *content) {
    return [NSPropertyListSerialization dataFromPropertyList:content
                                                      format:NSPropertyListXMLFormat_v1_0
                                            errorDescription:nullptr];
}

id valueOf(NSData *data, NSPropertyListReadOptions options) {
    return [NSPropertyListSerialization propertyListWithData:data
                                                     options:options
                                                      format:nullptr
                                                       error:nullptr];
}

} // namespace

std::string serialised(char letter, std::size_t count) {
    @autoreleasepool {
        NSData *data = [NSPropertyListSerialization dataWithPropertyList:contentWith(letter, count)
                                                                  format:NSPropertyListXMLFormat_v1_0
                                                                 options:0
                                                                   error:nullptr];
        return {static_cast<const char *>([data bytes]), [data length]};
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
        NSDictionary *content = contentWith('w', 100'000);
        NSDictionary *read = valueOf(written(content), NSPropertyListImmutable);
        return [read objectForKey:@"key"] == [content objectForKey:@"key"];
    }
}

} // namespace tarnwick::probe
