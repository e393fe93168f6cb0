#pragma once

#import "adapters/foundation/ObjectMaker.h"
#import "adapters/foundation/ObjectPointer.h"

#include <memory>
#include <unordered_map>

namespace tarnwick {

/// The objects of records, which are the dictionaries in a list. Every change of a record stores its list
/// anew, and publishes most of it; a record that has not changed is the same object each time.
class RecordObjects {
public:
    /// Autoreleased, and equal to what `toObject` gives.
    [[nodiscard]] id toObject(const PlistValue &value);

    /// Those of records that nobody else has any more.
    void forgetUnused();

private:
    struct Known {
        std::shared_ptr<const PlistDictionary> record;
        ObjectPointer<NSDictionary> object;
    };

    [[nodiscard]] NSArray *toList(const PlistArray &array);
    [[nodiscard]] id newElement(const PlistValue &element, ObjectMaker &maker);

    /// By the address of the record, which no other one takes while it is kept here.
    std::unordered_map<const PlistDictionary *, Known> known_;
};

} // namespace tarnwick
