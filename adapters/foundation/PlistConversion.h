#pragma once

#import <Foundation/Foundation.h>

#include "values/PlistValue.h"

#include <optional>

namespace tarnwick {

/// The value of a property-list object; nothing for nil and for what no property list can hold. Integers,
/// reals and booleans stay apart. Bytes are shared with the object, not copied.
[[nodiscard]] std::optional<PlistValue> toPlistValue(id object);
/// Autoreleased. Bytes are shared with the value, not copied.
[[nodiscard]] id toObject(const PlistValue &value);

[[nodiscard]] PlistData toPlistData(NSData *data);
[[nodiscard]] NSData *toNSData(const PlistData &data);

} // namespace tarnwick
