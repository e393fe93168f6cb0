#pragma once

#import <Foundation/Foundation.h>

#include <string>
#include <string_view>

namespace tarnwick {

/// UTF-8 of a platform string, embedded NULs included; empty for nil.
[[nodiscard]] std::string toString(NSString *text);
/// Never nil; bytes that are not UTF-8 become U+FFFD. Autoreleased.
[[nodiscard]] NSString *toNSString(std::string_view text);
/// UTF-8 of what "%@" writes for the object, which may be missing.
[[nodiscard]] std::string described(id object);

} // namespace tarnwick
