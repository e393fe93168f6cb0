#pragma once

#import <Foundation/Foundation.h>

#include <string>

namespace tarnwick::probe {

/// What a property list holds, in words: equal for equal values of equal kinds alone. As in
/// ("text", 1, real 1, true, <6162>, date 0, {"key": (), "other": "\u8868"}), with the keys in order.
std::string descriptionOf(id list);

} // namespace tarnwick::probe
