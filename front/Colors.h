#pragma once

#import <AppKit/AppKit.h>

#include "ui/Colour.h"

namespace tarnwick {

[[nodiscard]] inline NSColor *colorOf(const Colour &colour) {
    return [NSColor colorWithDeviceRed:colour.red green:colour.green blue:colour.blue alpha:colour.alpha];
}

/// Gives the view's layer the colour as it is in the view's appearance just now; no layer follows an
/// appearance by itself.
void setLayerBackground(NSView *view, NSColor *color);
/// A shade to be drawn over what is there, as it is just now, nearer to the colour of text: 0 nothing, 1 that
/// colour.
[[nodiscard]] NSColor *shadeColor(CGFloat shade);
void fillWithShade(NSRect rect, CGFloat shade);

} // namespace tarnwick
