#import "front/LayerWindow.h"

#import "front/Colors.h"

#import <QuartzCore/QuartzCore.h>

namespace tarnwick {

void LayerWindow::setMovableByBackground(bool movable) {
    [window_ setMovableByWindowBackground:movable];
}

void LayerWindow::setBackground(const Colour &colour) {
    setLayerBackground(colorOf(colour));
}

void LayerWindow::setTextBackground() {
    setLayerBackground([NSColor textBackgroundColor]);
}

void LayerWindow::activateApplication() {
    [window_ makeKeyAndOrderFront:nil];
    [NSApp activateIgnoringOtherApps:YES];
}

void LayerWindow::setLayerBackground(NSColor *color) {
    [[[window_ contentView] layer] setBackgroundColor:[color CGColor]];
    [[window_ contentView] setNeedsDisplay:YES];
}

} // namespace tarnwick
