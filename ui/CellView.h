#pragma once

#include "platform/Images.h"

#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace tarnwick {

/// A frame in points, inside the cell container.
struct Frame {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
    bool operator==(const Frame&) const = default;
};

enum class TextAlignment { natural, centred };

/// A text field without bezel and without background.
struct TextFieldCell {
    std::string text;
    bool editable = false;
    /// The controller is the field's delegate, so that a finished edit reaches it.
    bool hasDelegate = false;
    /// What a finished edit is dispatched on; empty: none.
    std::string_view identifier;
    TextAlignment alignment = TextAlignment::natural;
    bool operator==(const TextFieldCell&) const = default;
};

/// A check box without title whose target is the controller.
struct CheckBoxCell {
    bool on = false;
    bool enabled = true;
    /// The field of the record that it turns on and off.
    std::string_view field;
    bool operator==(const CheckBoxCell&) const = default;
};

/// An image view; null shows nothing.
struct ImageCell {
    ImagePointer image;
    bool operator==(const ImageCell&) const = default;
};

/// One table cell as a value: the front builds exactly this control.
struct CellView {
    /// Nothing but the empty container (`std::monostate`), or the one control in it.
    std::variant<std::monostate, TextFieldCell, CheckBoxCell, ImageCell> control;
    /// Absent: the control has its default size.
    std::optional<Frame> frame;
    /// The row index, on every control that carries one.
    std::optional<long> tag;
    /// The control is the cell itself, without the container around it.
    bool bare = false;
    bool operator==(const CellView&) const = default;
};

/// The container around a control.
inline constexpr Frame cellContainerFrame{0, 0, 200, 30};
inline constexpr double rowHeight = 30.0;

} // namespace tarnwick
