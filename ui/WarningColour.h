#pragma once

#include "ui/Colour.h"

namespace tarnwick {

/// What marks a rule with a fault, on a light and on a dark ground; legible on that of a selected row too.
inline constexpr Colour warningOnLight{0x9A / 255.0, 0x34 / 255.0, 0x12 / 255.0, 1};
inline constexpr Colour warningOnDark{0xFF / 255.0, 0xB4 / 255.0, 0x54 / 255.0, 1};

} // namespace tarnwick
