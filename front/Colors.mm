#import "front/Colors.h"

#import <QuartzCore/QuartzCore.h>

namespace tarnwick {

void setLayerBackground(NSView *view, NSColor *color) {
    NSAppearance *drawing = [NSAppearance currentAppearance];
    [NSAppearance setCurrentAppearance:[view effectiveAppearance]];
    [[view layer] setBackgroundColor:[color CGColor]];
    [NSAppearance setCurrentAppearance:drawing];
    [view setNeedsDisplay:YES];
}

void fillWithShade(NSRect rect, CGFloat shade) {
    // As it is just now: the system's own colours do not take another alpha everywhere.
    NSColor *text = [[NSColor controlTextColor] colorUsingColorSpace:[NSColorSpace deviceRGBColorSpace]];
    [[text colorWithAlphaComponent:shade] set];
    [NSBezierPath fillRect:rect];
}

} // namespace tarnwick
