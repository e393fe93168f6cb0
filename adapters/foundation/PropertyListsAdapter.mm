#import "adapters/foundation/PlistConversion.h"
#import "adapters/foundation/StringConversion.h"

#include "adapters/foundation/Adapters.h"
#include "platform/PropertyLists.h"

namespace tarnwick {
namespace {

class FoundationPropertyLists final : public PropertyLists {
public:
    std::optional<PlistValue> read(const std::string &path) const override {
        NSData *bytes = [NSData dataWithContentsOfFile:toNSString(path)];
        if (!bytes) {
            return std::nullopt;
        }
        NSPropertyListFormat format = NSPropertyListXMLFormat_v1_0;
        NSError *error = nil;
        return toPlistValue([NSPropertyListSerialization propertyListWithData:bytes
                                                                      options:NSPropertyListImmutable
                                                                       format:&format
                                                                        error:&error]);
    }
};

} // namespace

std::unique_ptr<PropertyLists> makePropertyLists() {
    return std::make_unique<FoundationPropertyLists>();
}

} // namespace tarnwick
