#pragma once

#include <string>

namespace tarnwick::standins {

/// What the icon of a file is made of, and its width.
struct IconFacts {
    std::string origin;
    double width = 0;
};
IconFacts iconOf(const std::string& path);
/// Makes a picture of as many bytes, and frees it.
void makeAndFreePicture(std::size_t bytes);

} // namespace tarnwick::standins
