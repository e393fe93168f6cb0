#pragma once

#include <string>

/// Text as it comes onto the screen, in a program that has started up.
namespace tarnwick::probe {

/// Whether two texts leave the same pixels in a field.
bool looksLike(const std::string& one, const std::string& other);
/// Whether a text has pixels that are not grey.
bool isColoured(const std::string& text);
double widthOf(const std::string& text);

} // namespace tarnwick::probe
