#pragma once

#include <string>

/// The menu that pops up as a preview, used by keyboard.
namespace tarnwick::gui {

inline constexpr char16_t upKey = 0xF700;
inline constexpr char16_t downKey = 0xF701;
inline constexpr char16_t rightKey = 0xF703;
inline constexpr char16_t enterKey = u'\r';
inline constexpr char16_t escapeKey = 0x1B;

/// Presses the preview button, or its keys, and then these.
void clickPreviewAndType(const std::u16string& keys);
void pressPreviewKeysAndType(const std::u16string& keys);

} // namespace tarnwick::gui
