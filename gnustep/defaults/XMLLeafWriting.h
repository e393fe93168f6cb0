#pragma once

#import "gnustep/defaults/PropertyListKinds.h"

#import <Foundation/Foundation.h>

#include <optional>
#include <string>

/// Each appends what stands for a value in an XML property list.

/// Without an element around it. Whether it is read as the same text: what XML cannot hold (control
/// characters but tabulators and line breaks, U+FFFE, U+FFFF, halves of characters) becomes U+FFFD.
bool TNAppendText(std::string &xml, NSString *text);
void TNAppendNumber(std::string &xml, NSNumber *number, TNListKind kind);
/// Whether it is read as the same date: fractions of a second are left out. Nothing, and nothing appended,
/// for a date that is not of the years 1 to 9999.
std::optional<bool> TNAppendDate(std::string &xml, NSDate *date);
void TNAppendData(std::string &xml, NSData *data);
