#pragma once

#include <memory>
#include <string>
#include <vector>

namespace tarnwick::probe {

enum class TableKey { returnKey, tab, escape, up, down };

/// A window with a view-based table, driven by mouse and keyboard events. Its columns are a check box, a name
/// that can be edited and a path that cannot; each cell holds its control in a plain view.
class TableWindow {
public:
    explicit TableWindow(long rows);
    ~TableWindow();
    TableWindow(const TableWindow&) = delete;
    TableWindow& operator=(const TableWindow&) = delete;

    enum Column { check, name, path };

    void click(long row, Column column, int clicks = 1);
    /// Below the last row.
    void clickEmptySpace(int clicks = 1);
    /// A text field beside the table.
    void clickFieldOutside();
    void press(TableKey key);
    void type(const std::string& text);
    void dragIntoGap(long row, long gap);
    void dragOnto(long row, long target);
    /// Drags the row to just inside the table's lower edge and lets go once the table has scrolled so far, or
    /// after ten seconds.
    void dragAtLowerEdge(long row, double wantedScroll);
    void scrollToRow(long row);
    void reload();
    /// Nothing is drawn yet.
    void reloadUnseen();
    /// As if the text were wrong: the delegate refuses to end an edit from now on.
    void refuseEndOfEditing(bool refuse);
    /// The data source sends drops on a row into the gap above it.
    void retargetDropsOnRows();

    /// What happened since the last call, in order: "action 2", "double 2" and "empty" with the clicked row,
    /// "check 2", "end 2 text", "drop 3 above 1", "selection 2".
    std::vector<std::string> takeEvents();
    [[nodiscard]] long selectedRow() const;
    [[nodiscard]] bool isEditing() const;
    [[nodiscard]] std::string editedText() const;
    [[nodiscard]] std::vector<std::string> names() const;
    /// Rows that have views, and views that the delegate was ever asked for.
    [[nodiscard]] long builtRows() const;
    [[nodiscard]] long viewsMade() const;
    [[nodiscard]] double rowHeight() const;
    /// Marks of a drop that are in the table.
    [[nodiscard]] int dropMarks() const;
    /// The most marks seen during a drag.
    [[nodiscard]] int dropMarksSeen() const;
    [[nodiscard]] double scrolledBy() const;
    /// The row and column that the table finds for the control in a cell; "-1 -1" for none.
    [[nodiscard]] std::string placeOfControl(long row, Column column) const;
    /// Whether a click in the middle of that cell would go to its control.
    [[nodiscard]] bool controlTakesClick(long row, Column column) const;
    /// The width of a cell and of the control in it that follows its width.
    [[nodiscard]] std::string widthsOfNameCell(long row) const;

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace tarnwick::probe
