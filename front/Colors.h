#pragma once

#import <AppKit/AppKit.h>

#include "ui/Colour.h"

namespace tarnwick {

[[nodiscard]] inline NSColor *colorOf(const Colour &colour) {
    return [NSColor colorWithDeviceRed:colour.red green:colour.green blue:colour.blue alpha:colour.alpha];
}

} // namespace tarnwick
