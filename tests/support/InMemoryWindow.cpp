#include "tests/support/InMemoryWindow.h"

namespace tarnwick::testing {

void InMemoryTable::reloadData() {
    log_.add("reload " + name_);
    if (rowCount) {
        rows = rowCount();
    }
    if (selected >= rows) {
        selected = -1;
    }
}

void InMemoryTable::selectRow(long row) {
    log_.add("select " + name_ + " " + std::to_string(row));
    if (row >= 0 && row < rows) {
        selected = row;
    }
}

void InMemoryTable::deselectAll() {
    log_.add("deselect " + name_);
    selected = -1;
}

void InMemoryTable::setDraggingSourceOperationMask(std::uint32_t mask, DragScope scope) {
    dragMasks.emplace_back(mask, scope);
}

void InMemoryButton::setEnabled(bool on) {
    log_.add((on ? "enable " : "disable ") + name_);
    enabled = on;
}

void InMemoryRowEditing::end() {
    if (const auto ended = std::exchange(edit, nullptr)) {
        log_.add("end edit");
        ended();
    }
}

void InMemoryWindowFrame::setMovableByBackground(bool movable) {
    log_.add(movable ? "movable by background" : "not movable by background");
}

void InMemoryWindowFrame::setBackground(const Colour& colour) {
    log_.add("background");
    background = colour;
}

InMemoryWindow::InMemoryWindow(CallLog& log)
    : rowEditing(log), restartFinderButton(log, "restart"), helpButton(log, "help") {
    for (const auto* name : {"createNewFile", "copyFilesTo", "commonPath", "customIcon", "others"}) {
        tables.emplace_back(log, name);
        removeButtons.emplace_back(log, std::string("remove ") + name);
    }
    for (const auto* name :
        {"createNewFile", "copyFilesTo", "commonPath", "customIcon", "others", "moreApps"}) {
        pageButtons.emplace_back(log, std::string("page ") + name);
    }
}

Outlets InMemoryWindow::outlets() {
    Outlets outlets;
    outlets.version = &version;
    outlets.tabView = &tabs;
    for (std::size_t index = 0; index < tables.size(); ++index) {
        outlets.tables[index] = &tables[index];
        outlets.removeButtons[index] = &removeButtons[index];
    }
    for (std::size_t index = 0; index < pageButtons.size(); ++index) {
        outlets.pageButtons[index] = &pageButtons[index];
    }
    outlets.rowEditing = &rowEditing;
    outlets.restartFinderButton = &restartFinderButton;
    outlets.helpButton = &helpButton;
    return outlets;
}

} // namespace tarnwick::testing
