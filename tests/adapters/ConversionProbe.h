#pragma once

#include "values/PlistValue.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The conversions between the core's values and the platform's, seen from outside.
namespace tarnwick::testing {

/// The text as a platform string and back.
std::string textThroughPlatform(std::string_view text);
/// The UTF-16 units of the platform string made of the text.
std::vector<unsigned> unitsOf(std::string_view text);
/// The text of the two halves of a character beyond the basic plane, in turn, with "-" between them.
std::string textOfHalves();
std::string textOfNil();

/// The value as a platform object and back.
std::optional<PlistValue> throughPlatform(const PlistValue& value);
/// The class of number that the value becomes: "boolean", "real", "integer"; "other" for anything else.
std::string numberKindOf(const PlistValue& value);
/// Whether the platform's data for these bytes lies at the same place, and the value made of it again, too.
bool sharesItsBytes(const PlistData& data);
/// Whether a value made of data that can change keeps the bytes of that moment.
bool keepsTheBytesOfMutableData();
/// The value of an array with a string, an object that no property list can hold, and a number.
std::optional<PlistValue> arrayWithAForeignObject();
/// The value of a dictionary with a number for a key beside one with a string.
std::optional<PlistValue> dictionaryWithANumberForKey();
std::optional<PlistValue> valueOfNil();

} // namespace tarnwick::testing
