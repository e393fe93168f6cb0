#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarnwick {

/// Handles on the controls of the window that the core acts on. Each has an implementation over the AppKit
/// control and one in memory.

/// A colour in the device colour space, components from 0 to 1.
struct Colour {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 0;
    bool operator==(const Colour&) const = default;
};

inline constexpr Colour clearColour{};

/// What a table lets a drag do, as the platform numbers it.
inline constexpr std::uint32_t dragOperationNone = 0;
inline constexpr std::uint32_t dragOperationCopy = 1;
inline constexpr std::uint32_t dragOperationLink = 2;
inline constexpr std::uint32_t dragOperationMove = 16;
inline constexpr std::uint32_t dragOperationEvery = 0xFFFFFFFFU;

enum class DragScope { insideApplication, outsideApplication };

class TableControl {
public:
    virtual ~TableControl() = default;
    virtual void reloadData() = 0;
    /// -1 when no row is selected.
    [[nodiscard]] virtual long selectedRow() const = 0;
    [[nodiscard]] virtual long numberOfRows() const = 0;
    /// Selects this row alone; a row that the table does not have changes nothing.
    virtual void selectRow(long row) = 0;
    virtual void deselectAll() = 0;
    virtual void setDraggingSourceOperationMask(std::uint32_t mask, DragScope scope) = 0;
    /// The only kind of drag the table accepts from now on.
    virtual void registerForDraggedType(std::string_view type) = 0;
};

class ButtonControl {
public:
    virtual ~ButtonControl() = default;
    virtual void setEnabled(bool enabled) = 0;
    virtual void setHidden(bool hidden) = 0;
    /// The background of the button's layer.
    virtual void setBackground(const Colour& colour) = 0;
    /// The same title, centred, in this colour.
    virtual void setTitleColour(const Colour& colour) = 0;
};

class LabelControl {
public:
    virtual ~LabelControl() = default;
    virtual void setText(std::string_view text) = 0;
};

class TabControl {
public:
    virtual ~TabControl() = default;
    virtual void selectTab(int index) = 0;
};

/// The text field of a table row that is being edited, when there is one.
class RowEditing {
public:
    virtual ~RowEditing() = default;
    /// Ends the edit as the Return key does: the text reaches the controller, which stores it, before this
    /// returns. Nothing happens while no row is being edited.
    virtual void end() = 0;
};

/// The window around the controls.
class WindowControl {
public:
    virtual ~WindowControl() = default;
    virtual void setMovableByBackground(bool movable) = 0;
    /// The background of the content view's layer.
    virtual void setBackground(const Colour& colour) = 0;
    /// The same, in the system's colour behind text.
    virtual void setTextBackground() = 0;
    /// Brings the application to the front, ignoring the others.
    virtual void activateApplication() = 0;
};

} // namespace tarnwick
