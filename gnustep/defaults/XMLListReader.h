#pragma once

#import <Foundation/Foundation.h>

#include <string>

/// What a reader has made of the bytes of a property list.
struct TNReadList {
    /// Autoreleased; nil for a damaged list.
    id value = nil;
    /// What is wrong with it, with the line where that is.
    std::string problem;
};

/// Reads a property list from XML in any encoding. What is not wholly understood is damaged: bytes that are
/// no well-formed XML, unknown elements, entities of the file's own, text between elements, numbers that fit
/// into no 64 bits, dates that the calendar does not have, base64 with anything else in it, containers that
/// nest deeper than `TNDeepestNesting`, more or less than one value. Of equal keys in a dictionary the last
/// holds.
TNReadList TNReadXMLList(NSData *data, NSPropertyListReadOptions options);
