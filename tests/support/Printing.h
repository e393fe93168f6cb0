#pragma once

#include "prefs/RuleCategory.h"
#include "values/PlistValue.h"

#include <iosfwd>

/// How values appear in the names of tests and in what a failed one says.
namespace tarnwick {

/// The list key without its prefix: "CreateNewFile".
void PrintTo(RuleCategory category, std::ostream* stream);
/// As in a property list written as text; of data, the number of bytes.
void PrintTo(const PlistValue& value, std::ostream* stream);

} // namespace tarnwick
