#pragma once

namespace tarnwick {

/// A colour in the device colour space, components from 0 to 1.
struct Colour {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 0;
    bool operator==(const Colour&) const = default;
};

inline constexpr Colour clearColour{};

} // namespace tarnwick
