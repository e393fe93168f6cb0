#pragma once

#include "platform/WindowControls.h"
#include "tests/support/CallLog.h"
#include "ui/Outlets.h"

#include <array>
#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace tarnwick::testing {

/// A table that counts its rows through `rowCount` when it is reloaded, as a real one asks its data source.
/// Logs "reload NAME", "select NAME ROW" and "deselect NAME".
class InMemoryTable final : public TableControl {
public:
    InMemoryTable(CallLog& log, std::string name) : log_(log), name_(std::move(name)) {}
    long selected = -1;
    long rows = 0;
    std::function<long()> rowCount;
    std::vector<std::pair<std::uint32_t, DragScope>> dragMasks;
    std::vector<std::string> dragTypes;

    void reloadData() override;
    long selectedRow() const override { return selected; }
    long numberOfRows() const override { return rows; }
    void selectRow(long row) override;
    void deselectAll() override;
    void setDraggingSourceOperationMask(std::uint32_t mask, DragScope scope) override;
    void registerForDraggedType(std::string_view type) override { dragTypes.emplace_back(type); }

private:
    CallLog& log_;
    std::string name_;
};

/// Logs "enable NAME" and "disable NAME".
class InMemoryButton final : public ButtonControl {
public:
    InMemoryButton(CallLog& log, std::string name) : log_(log), name_(std::move(name)) {}
    bool enabled = true;
    bool hidden = false;
    Colour background;
    Colour titleColour;

    void setEnabled(bool on) override;
    void setHidden(bool on) override { hidden = on; }
    void setBackground(const Colour& colour) override { background = colour; }
    void setTitleColour(const Colour& colour) override { titleColour = colour; }

private:
    CallLog& log_;
    std::string name_;
};

/// Logs "end edit" when it ends one.
class InMemoryRowEditing final : public RowEditing {
public:
    explicit InMemoryRowEditing(CallLog& log) : log_(log) {}
    /// The edit in progress: gives the controller its text, as the field does. Empty: none.
    std::function<void()> edit;

    void end() override;

private:
    CallLog& log_;
};

class InMemoryLabel final : public LabelControl {
public:
    std::string text;
    void setText(std::string_view newText) override { text = newText; }
};

class InMemoryTabs final : public TabControl {
public:
    int selected = -1;
    void selectTab(int index) override { selected = index; }
};

/// Logs each call.
class InMemoryWindowFrame final : public WindowControl {
public:
    explicit InMemoryWindowFrame(CallLog& log) : log_(log) {}
    Colour background;
    void setMovableByBackground(bool movable) override;
    void setBackground(const Colour& colour) override;
    void setTextBackground() override { log_.add("text background"); }
    void activateApplication() override { log_.add("activate"); }

private:
    CallLog& log_;
};

/// All controls of the window, named after their categories: "createNewFile", "copyFilesTo", "commonPath",
/// "customIcon", "others".
class InMemoryWindow {
public:
    explicit InMemoryWindow(CallLog& log);
    [[nodiscard]] Outlets outlets();
    [[nodiscard]] InMemoryTable& table(RuleCategory category) {
        return tables[static_cast<std::size_t>(category)];
    }
    [[nodiscard]] InMemoryButton& removeButton(RuleCategory category) {
        return removeButtons[static_cast<std::size_t>(category)];
    }

    InMemoryLabel version;
    InMemoryTabs tabs;
    std::deque<InMemoryButton> pageButtons;
    std::deque<InMemoryTable> tables;
    std::deque<InMemoryButton> removeButtons;
    InMemoryRowEditing rowEditing;
    InMemoryButton restartFinderButton;
    InMemoryButton helpButton;
};

} // namespace tarnwick::testing
