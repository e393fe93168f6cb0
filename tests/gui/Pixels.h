#pragma once

#import <AppKit/AppKit.h>

#include <map>

namespace tarnwick::gui {

/// What a window shows, without drawing it again. Places are in the coordinates of the view that holds all
/// others, frame and menu bar included.
class Pixels {
public:
    explicit Pixels(NSWindow *window);
    ~Pixels();
    Pixels(const Pixels &) = delete;
    Pixels &operator=(const Pixels &) = delete;

    /// Red, green and blue, a byte each; 0 outside.
    [[nodiscard]] unsigned colourAt(NSPoint place) const;
    /// How often each colour is there.
    [[nodiscard]] std::map<unsigned, int> coloursIn(NSRect rect) const;
    /// The one that is there most often.
    [[nodiscard]] unsigned groundOf(NSRect rect) const;
    /// Between its ground and the colour that differs most from it.
    [[nodiscard]] double contrastIn(NSRect rect) const;
    /// The same against another ground.
    [[nodiscard]] double contrastIn(NSRect rect, unsigned ground) const;
    /// Between the ground at a place and the first thing to the right of it that is there.
    [[nodiscard]] double edgeOf(NSPoint start, CGFloat length) const;

private:
    NSBitmapImageRep *pixels_;
};

/// As WCAG defines it.
[[nodiscard]] double contrastBetween(unsigned one, unsigned other);

} // namespace tarnwick::gui
