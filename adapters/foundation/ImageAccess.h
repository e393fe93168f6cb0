#pragma once

#import <AppKit/AppKit.h>

#include "platform/Images.h"

namespace tarnwick {

/// The platform's image behind one that the images adapter made; nil for null.
[[nodiscard]] NSImage* imageOf(const ImagePointer& image);

} // namespace tarnwick
