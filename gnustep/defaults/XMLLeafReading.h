#pragma once

#import <Foundation/Foundation.h>

#include <string_view>

/// What the text in an element of a property list stands for. Each gives a reference to be released, or nil
/// for what the element may not hold. White space around numbers, dates and base64 does not count.

/// `text` is well-formed UTF-8.
NSString *TNNewText(std::string_view text, bool isMutable);
/// Decimal, or hexadecimal after 0x, from -2^63 to 2^64 - 1.
NSNumber *TNNewInteger(std::string_view text);
/// Decimal, with an exponent or not, "nan" or "inf"; not beyond what a double holds.
NSNumber *TNNewReal(std::string_view text);
/// As in 2001-02-28T23:59:59Z.
NSDate *TNNewDate(std::string_view text);
/// Of base64.
NSData *TNNewData(std::string_view text, bool isMutable);
