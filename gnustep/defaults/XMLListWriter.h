#pragma once

#import "gnustep/defaults/PropertyListKinds.h"

#include <deque>
#include <string>
#include <string_view>
#include <vector>

/// Writes a property list as XML, from the objects to the bytes in one pass. For one list.
class TNXMLListWriter {
public:
    /// Whether the value can be written: it is nothing but what a property list holds, all keys are texts
    /// that XML can hold, all dates are of the years 1 to 9999, and nothing nests deeper than
    /// `TNDeepestNesting`.
    bool write(id value);
    /// The whole file, once it has been written.
    std::string& bytes() { return bytes_; }
    /// Why it could not be written.
    const char* problem() const { return problem_; }

    /// Whether reading the bytes gives the same values. Not so when the list has what XML cannot hold: other
    /// control characters than tabulators and line breaks, U+FFFE, U+FFFF and halves of characters are
    /// written as U+FFFD, and dates without fractions of a second.
    bool isExact() const { return isExact_; }
    /// Whether anything below the value itself may be changed in place.
    bool hasMutableParts() const { return hasMutableParts_; }

private:
    /// The keys of the dictionary that was written last at some depth: in a list of records the next one has
    /// the very same.
    struct Shape {
        std::vector<id> keys;
        /// The places of the keys in the order of the file, and their lines there.
        std::vector<std::size_t> order;
        std::vector<std::string> lines;
    };

    bool refuse(const char* problem);
    void append(std::string_view text) { bytes_.append(text); }
    void indent(unsigned depth) { bytes_.append(depth, '\t'); }
    bool writeValue(id value, unsigned depth);
    bool writeArray(id array, unsigned depth);
    bool writeDictionary(id dictionary, unsigned depth);
    /// The shape of a dictionary at a depth; null when a key cannot be written.
    const Shape* shapeOf(id dictionary, unsigned depth);

    std::string bytes_;
    std::deque<Shape> shapes_;
    const char* problem_ = "";
    bool isExact_ = true;
    bool hasMutableParts_ = false;
};
