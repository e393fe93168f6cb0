#include "tests/gui/Pixels.h"

#include <algorithm>
#include <cmath>

namespace tarnwick::gui {
namespace {

double luminance(unsigned colour) {
    const auto part = [colour](unsigned shift) {
        const double value = static_cast<double>(colour >> shift & 0xFF) / 255;
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(16) + 0.7152 * part(8) + 0.0722 * part(0);
}

} // namespace

double contrastBetween(unsigned one, unsigned other) {
    const auto [low, high] = std::minmax(luminance(one), luminance(other));
    return (high + 0.05) / (low + 0.05);
}

Pixels::Pixels(NSWindow *window) {
    NSView *frame = [[window contentView] superview];
    [frame lockFocus];
    pixels_ = [[NSBitmapImageRep alloc] initWithFocusedViewRect:[frame bounds]];
    [frame unlockFocus];
}

Pixels::~Pixels() {
    [pixels_ release];
}

unsigned Pixels::colourAt(NSPoint place) const {
    const auto x = static_cast<NSInteger>(std::floor(place.x));
    const auto y = [pixels_ pixelsHigh] - 1 - static_cast<NSInteger>(std::floor(place.y));
    if (x < 0 || y < 0 || x >= [pixels_ pixelsWide] || y >= [pixels_ pixelsHigh]) {
        return 0;
    }
    const unsigned char *pixel =
        [pixels_ bitmapData] + y * [pixels_ bytesPerRow] + x * [pixels_ bitsPerPixel] / 8;
    return static_cast<unsigned>(pixel[0] << 16 | pixel[1] << 8 | pixel[2]);
}

std::map<unsigned, int> Pixels::coloursIn(NSRect rect) const {
    std::map<unsigned, int> colours;
    for (CGFloat y = NSMinY(rect); y < NSMaxY(rect); ++y) {
        for (CGFloat x = NSMinX(rect); x < NSMaxX(rect); ++x) {
            ++colours[colourAt(NSMakePoint(x, y))];
        }
    }
    return colours;
}

unsigned Pixels::groundOf(NSRect rect) const {
    const auto colours = coloursIn(rect);
    const auto most = std::max_element(colours.begin(), colours.end(),
        [](const auto &one, const auto &other) { return one.second < other.second; });
    return most == colours.end() ? 0 : most->first;
}

double Pixels::contrastIn(NSRect rect) const {
    return contrastIn(rect, groundOf(rect));
}

double Pixels::contrastIn(NSRect rect, unsigned ground) const {
    double highest = 1;
    for (const auto &[colour, count] : coloursIn(rect)) {
        highest = std::max(highest, contrastBetween(ground, colour));
    }
    return highest;
}

double Pixels::edgeOf(NSPoint start, CGFloat length) const {
    // A soft corner is as wide as this, and no stripe of the ground differs as much.
    constexpr CGFloat softness = 2;
    constexpr double nothing = 1.15;
    const unsigned ground = colourAt(start);
    for (CGFloat x = 0; x < length; ++x) {
        const NSPoint place = NSMakePoint(start.x + x, start.y);
        if (contrastBetween(ground, colourAt(place)) > nothing) {
            return contrastIn(NSMakeRect(place.x, place.y, softness, 1), ground);
        }
    }
    return 1;
}

} // namespace tarnwick::gui
