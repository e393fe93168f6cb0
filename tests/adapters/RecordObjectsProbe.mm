#include "RecordObjectsProbe.h"

#import "adapters/foundation/ObjectPointer.h"
#import "adapters/foundation/PlistConversion.h"
#import "adapters/foundation/RecordObjects.h"

#include <algorithm>

namespace tarnwick::testing {

struct RecordObjectsProbe::Parts {
    RecordObjects objects;
    std::vector<ObjectPointer<NSObject>> seen;
};

RecordObjectsProbe::RecordObjectsProbe() : parts_(std::make_unique<Parts>()) {}
RecordObjectsProbe::~RecordObjectsProbe() = default;

std::optional<PlistValue> RecordObjectsProbe::throughPlatform(const PlistValue &value) {
    return toPlistValue(parts_->objects.toObject(value));
}

std::vector<const void *> RecordObjectsProbe::objectsIn(const PlistValue &list) {
    std::vector<const void *> objects;
    @autoreleasepool {
        for (NSObject *object in parts_->objects.toObject(list)) {
            parts_->seen.push_back(ObjectPointer<NSObject>::retaining(object));
            objects.push_back(object);
        }
    }
    return objects;
}

void RecordObjectsProbe::forgetUnused() {
    parts_->objects.forgetUnused();
}

bool RecordObjectsProbe::isForgotten(const void *object) const {
    const auto own = std::count_if(parts_->seen.begin(), parts_->seen.end(),
        [object](const auto &seen) { return seen.get() == object; });
    return [static_cast<NSObject *>(const_cast<void *>(object)) retainCount] == static_cast<NSUInteger>(own);
}

} // namespace tarnwick::testing
