// Missing: speed and exactness of property lists written as XML, as of GNUstep Base 1.28, which takes several
// times as long, writes each half of a character beyond U+FFFF as an escape of its own that no other reader
// knows, carriage returns as they are, which readers take for line feeds, and sixteen digits of a real
// number.

#import "gnustep/defaults/XMLListWriter.h"

#import "gnustep/defaults/XMLLeafWriting.h"

#include <algorithm>
#include <numeric>
#include <string_view>

namespace {

constexpr std::string_view head = R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">
)";

} // namespace

bool TNXMLListWriter::refuse(const char *problem) {
    problem_ = problem;
    return false;
}

bool TNXMLListWriter::write(id value) {
    append(head);
    if (!writeValue(value, 0)) {
        return false;
    }
    append("</plist>\n");
    return true;
}

bool TNXMLListWriter::writeValue(id value, unsigned depth) {
    const auto type = TNListTypeOf(value);
    hasMutableParts_ = hasMutableParts_ || (type.isMutable && depth > 0);
    switch (type.kind) {
    case TNListKind::string:
        append("<string>");
        isExact_ = TNAppendText(bytes_, value) && isExact_;
        append("</string>\n");
        return true;
    case TNListKind::data:
        TNAppendData(bytes_, value);
        return true;
    case TNListKind::date:
        if (const auto isExact = TNAppendDate(bytes_, value)) {
            isExact_ = *isExact && isExact_;
            return true;
        }
        return refuse("a date is not of the years 1 to 9999");
    case TNListKind::array:
        return writeArray(value, depth);
    case TNListKind::dictionary:
        return writeDictionary(value, depth);
    case TNListKind::none:
        return refuse("something is no property list");
    default:
        TNAppendNumber(bytes_, value, type.kind);
        return true;
    }
}

bool TNXMLListWriter::writeArray(id array, unsigned depth) {
    if (depth == TNDeepestNesting) {
        return refuse("it nests too deep");
    }
    append("<array>\n");
    for (id element in array) {
        indent(depth + 1);
        if (!writeValue(element, depth + 1)) {
            return false;
        }
    }
    indent(depth);
    append("</array>\n");
    return true;
}

bool TNXMLListWriter::writeDictionary(id dictionary, unsigned depth) {
    if (depth == TNDeepestNesting) {
        return refuse("it nests too deep");
    }
    const auto *shape = shapeOf(dictionary, depth);
    if (!shape) {
        return refuse("a key is no text that XML can hold");
    }
    append("<dict>\n");
    for (const auto place : shape->order) {
        append(shape->lines[place]);
        indent(depth + 1);
        if (!writeValue([dictionary objectForKey:shape->keys[place]], depth + 1)) {
            return false;
        }
    }
    indent(depth);
    append("</dict>\n");
    return true;
}

const TNXMLListWriter::Shape *TNXMLListWriter::shapeOf(id dictionary, unsigned depth) {
    if (shapes_.size() <= depth) {
        shapes_.resize(depth + 1);
    }
    auto &shape = shapes_[depth];
    std::size_t same = 0;
    for (id key in dictionary) {
        if (same == shape.keys.size() || shape.keys[same] != key) {
            same = shape.keys.size() + 1;
            break;
        }
        ++same;
    }
    if (same == shape.keys.size()) {
        return &shape;
    }
    shape = {};
    for (id key in dictionary) {
        auto &line = shape.lines.emplace_back(depth + 1, '\t');
        line.append("<key>");
        // Two keys might become one.
        if (TNListTypeOf(key).kind != TNListKind::string || !TNAppendText(line, key)) {
            return nullptr;
        }
        line.append("</key>\n");
        shape.keys.push_back(key);
    }
    shape.order.resize(shape.keys.size());
    std::iota(shape.order.begin(), shape.order.end(), std::size_t{0});
    std::sort(shape.order.begin(), shape.order.end(),
        [&shape](std::size_t one, std::size_t other) { return shape.lines[one] < shape.lines[other]; });
    return &shape;
}
