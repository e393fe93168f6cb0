#pragma once

namespace tarnwick {

struct Colour;

/// The application's window as the delegate acts on it. A missing window makes what is asked of it do
/// nothing. Implementations: the window over AppKit's, in memory.
class ApplicationWindow {
public:
    virtual ~ApplicationWindow() = default;
    virtual void setMovableByBackground(bool movable) = 0;
    /// The background of the content view's layer.
    virtual void setBackground(const Colour& colour) = 0;
    /// The same, in the system's colour behind text.
    virtual void setTextBackground() = 0;
    /// Brings the application to the front, ignoring the others.
    virtual void activateApplication() = 0;
};

} // namespace tarnwick
