#include "SettingsReaders.h"

#import "adapters/foundation/PlistConversion.h"
#import "gnustep/defaults/XMLListReader.h"
#import "gnustep/defaults/XMLListWriter.h"
#import "tests/gnustep/ListDescription.h"

#import <Foundation/Foundation.h>

/// GNUstep's own reader, which the layer has replaced.
@interface GSXMLPListParser : NSObject
- (id)initWithData:(NSData *)data mutability:(NSUInteger)options;
- (BOOL)parse;
- (id)result;
@end

namespace tarnwick::fuzz {
namespace {

NSData *dataOf(const std::string &bytes) {
    return [NSData dataWithBytes:bytes.data() length:bytes.size()];
}

Description described(id value) {
    return value ? Description(probe::descriptionOf(value)) : std::nullopt;
}

id readInAnyForm(const std::string &bytes) {
    return [NSPropertyListSerialization propertyListWithData:dataOf(bytes)
                                                     options:NSPropertyListImmutable
                                                      format:nullptr
                                                       error:nullptr];
}

std::optional<Written> writtenFor(id value) {
    TNXMLListWriter writer;
    if (!value || !writer.write(value)) {
        return std::nullopt;
    }
    return Written{writer.bytes(), writer.isExact()};
}

} // namespace

Description readBySettings(const std::string &bytes) {
    return described(readInAnyForm(bytes));
}

Description readByLayer(const std::string &bytes, Changeable asked) {
    return described(TNReadXMLList(dataOf(bytes),
        asked == Changeable::nothing ? NSPropertyListImmutable : NSPropertyListMutableContainersAndLeaves)
                         .value);
}

Description readByToolkit(const std::string &bytes) {
    GSXMLPListParser *parser = [[[NSClassFromString(@"GSXMLPListParser") alloc] initWithData:dataOf(bytes)
                                                                                  mutability:0] autorelease];
    @try {
        return [parser parse] ? described([parser result]) : std::nullopt;
    } @catch (NSException *) {
        return std::nullopt;
    }
}

std::optional<Written> writtenAgain(const std::string &bytes) {
    return writtenFor(readInAnyForm(bytes));
}

std::optional<Written> written(const PlistValue &value) {
    return writtenFor(toObject(value));
}

std::string describe(const PlistValue &value) {
    return probe::descriptionOf(toObject(value));
}

} // namespace tarnwick::fuzz
