#pragma once

#include "values/PlistValue.h"

#include <string>

namespace tarnwick {

/// A short text that is the same for equal values, in every process, and another one for nearly all others.
[[nodiscard]] std::string digestOf(const PlistValue& value);

} // namespace tarnwick
