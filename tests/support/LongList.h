#pragma once

#include "prefs/RuleList.h"

#include <cstddef>

namespace tarnwick::testing {

/// Custom icons, every tenth of them off. Each record has `imageBytes` of image data, all of them the same
/// buffer: whoever copied image data would copy it for every record. None: the records have no image.
[[nodiscard]] RuleList makeLongList(std::size_t records, std::size_t imageBytes);

} // namespace tarnwick::testing
