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

} // namespace tarnwick
