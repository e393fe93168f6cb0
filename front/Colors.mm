#import "front/Colors.h"

#import <QuartzCore/QuartzCore.h>

namespace tarnwick {

void setLayerBackground(NSView *view, NSColor *color) {
    NSAppearance *drawing = [NSAppearance currentAppearance];
    [NSAppearance setCurrentAppearance:[view effectiveAppearance]];
    [[view layer] setBackgroundColor:[color CGColor]];
    [NSAppearance setCurrentAppearance:drawing];
}

NSColor *shadeColor(CGFloat shade) {
    // The system's own colours do not take another alpha everywhere.
    NSColor *text = [[NSColor controlTextColor] colorUsingColorSpace:[NSColorSpace deviceRGBColorSpace]];
    return [text colorWithAlphaComponent:shade];
}

void fillWithShade(NSRect rect, CGFloat shade) {
    [shadeColor(shade) set];
    [NSBezierPath fillRect:rect];
}

} // namespace tarnwick
