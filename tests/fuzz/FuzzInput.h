#pragma once

#include "values/PlistValue.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace tarnwick::fuzz {

/// Reads choices, texts and property-list values out of arbitrary bytes. Past the end every choice is 0, so
/// any input, however short, means something.
class FuzzInput {
public:
    FuzzInput(const std::uint8_t* bytes, std::size_t size) : bytes_(bytes), left_(size) {}

    [[nodiscard]] bool atEnd() const { return left_ == 0; }
    /// From 0 to below `below`, which must be positive.
    long pick(long below);
    /// Up to 24 bytes as they come, valid UTF-8 or not.
    std::string bytes();
    /// One that the program knows (a key, a field, an action, a flag), or any bytes.
    std::string text();
    /// A value of any kind, containers up to `depth` deep.
    PlistValue value(int depth = 4);
    /// Like a record of some list: known fields with mostly fitting values.
    PlistValue record();
    /// Like a stored list: mostly an array, mostly of records.
    PlistValue list();
    /// A preference domain: known keys with what may or may not belong there.
    PlistDictionary store();

private:
    std::uint8_t next();

    const std::uint8_t* bytes_;
    std::size_t left_;
};

} // namespace tarnwick::fuzz
