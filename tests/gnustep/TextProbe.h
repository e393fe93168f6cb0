#pragma once

#include <string>
#include <utility>

/// Text as it comes onto the screen, in a program that has started up.
namespace tarnwick::probe {

/// Whether two texts leave the same pixels in a field.
bool looksLike(const std::string& one, const std::string& other);
/// Whether a text has pixels that are not grey.
bool isColoured(const std::string& text);
double widthOf(const std::string& text);

/// Where one begins to type in a field without text that is so wide.
enum class TextSide { left, middle, right };
double insertionPoint(TextSide side, double width);
/// The sides of the box around what is edited in a field without bezel, from the field's own.
std::pair<double, double> boxOfEditedField();

} // namespace tarnwick::probe
