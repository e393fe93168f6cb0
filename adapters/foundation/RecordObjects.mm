#import "adapters/foundation/RecordObjects.h"

#import "adapters/foundation/PlistConversion.h"

#include <utility>
#include <vector>

namespace tarnwick {

id RecordObjects::toObject(const PlistValue &value) {
    const auto *array = value.array();
    return array ? toList(*array) : tarnwick::toObject(value);
}

NSArray *RecordObjects::toList(const PlistArray &array) {
    ObjectMaker maker;
    std::vector<id> elements;
    elements.reserve(array.size());
    for (const auto &element : array) {
        elements.push_back(newElement(element, maker));
    }
    NSArray *result = [NSArray arrayWithObjects:elements.data() count:elements.size()];
    for (id element : elements) {
        [element release];
    }
    return result;
}

id RecordObjects::newElement(const PlistValue &element, ObjectMaker &maker) {
    const auto *record = element.dictionary();
    if (!record) {
        return maker.newObject(element);
    }
    auto &known = known_[record];
    if (!known.record) {
        NSDictionary *object = maker.newDictionary(*record);
        known = {element.sharedDictionary(), ObjectPointer<NSDictionary>::adopting(object)};
    }
    return [known.object.get() retain];
}

void RecordObjects::forgetUnused() {
    std::erase_if(known_, [](const auto &entry) { return entry.second.record.use_count() == 1; });
}

} // namespace tarnwick
