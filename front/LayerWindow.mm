#import "front/LayerWindow.h"

#import "front/Colors.h"

namespace tarnwick {

void LayerWindow::setMovableByBackground(bool movable) {
    [window_ setMovableByWindowBackground:movable];
}

void LayerWindow::setBackground(const Colour &colour) {
    setLayerBackground([window_ contentView], colorOf(colour));
}

void LayerWindow::setTextBackground() {
    setLayerBackground([window_ contentView], [NSColor textBackgroundColor]);
}

void LayerWindow::activateApplication() {
    [window_ makeKeyAndOrderFront:nil];
    [NSApp activateIgnoringOtherApps:YES];
}

} // namespace tarnwick
