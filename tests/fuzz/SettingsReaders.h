#pragma once

#include "values/PlistValue.h"

#include <cstdint>
#include <optional>
#include <string>

/// The readers and the writer of settings files, seen from outside.
namespace tarnwick::fuzz {

/// What a reader makes of bytes, in the words of tests/gnustep/ListDescription.h; nothing when it refuses
/// them.
using Description = std::optional<std::string>;

/// As the program reads settings, in any form.
Description readBySettings(const std::string& bytes);
/// The layer's own reader of XML; `asked` values may be changed in place.
enum class Changeable { nothing, everything };
Description readByLayer(const std::string& bytes, Changeable asked = Changeable::nothing);
/// The toolkit's reader of XML.
Description readByToolkit(const std::string& bytes);
/// Python's reader of XML. Ends the run when there is none.
Description readByPlistlib(const std::string& bytes);

/// What is written for what the program reads, and whether reading that gives the same; nothing for what
/// cannot be read, or not written.
struct Written {
    std::string bytes;
    bool isExact = false;
};
std::optional<Written> writtenAgain(const std::string& bytes);
std::optional<Written> written(const PlistValue& value);

std::string describe(const PlistValue& value);

} // namespace tarnwick::fuzz
