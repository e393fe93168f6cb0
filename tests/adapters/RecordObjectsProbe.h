#pragma once

#include "values/PlistValue.h"

#include <memory>
#include <optional>
#include <vector>

namespace tarnwick::testing {

/// The objects of records, seen from outside.
class RecordObjectsProbe {
public:
    RecordObjectsProbe();
    ~RecordObjectsProbe();
    RecordObjectsProbe(const RecordObjectsProbe&) = delete;
    RecordObjectsProbe& operator=(const RecordObjectsProbe&) = delete;

    /// The value as an object, and back.
    [[nodiscard]] std::optional<PlistValue> throughPlatform(const PlistValue& value);
    /// The objects in the list. They live on as long as the probe does.
    std::vector<const void*> objectsIn(const PlistValue& list);
    void forgetUnused();
    /// Whether nobody but the probe keeps that object.
    [[nodiscard]] bool isForgotten(const void* object) const;

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace tarnwick::testing
