#pragma once

#import <AppKit/AppKit.h>

#include "app/ApplicationWindow.h"

namespace tarnwick {

/// A window with a layer-backed content view, which it does not keep alive.
class LayerWindow final : public ApplicationWindow {
public:
    explicit LayerWindow(NSWindow* window) : window_(window) {}

    void setMovableByBackground(bool movable) override;
    void setBackground(const Colour& colour) override;
    void setTextBackground() override;
    void activateApplication() override;

private:
    NSWindow* window_;
};

} // namespace tarnwick
