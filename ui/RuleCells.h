#pragma once

#include "ui/CellView.h"

#include <cstddef>
#include <string>

namespace tarnwick {

class ApplicationBundle;
class KnownFolders;
class RuleList;
class RuleRecord;
struct Column;

/// Makes the cells of the tables, a method for each kind of cell. A missing field shows as empty text, an off
/// check box or an empty image. The row must be in range.
class RuleCells {
public:
    RuleCells(const KnownFolders& folders, const ApplicationBundle& bundle, Images& images)
        : folders_(folders), bundle_(bundle), images_(images) {}

    using Maker = CellView (RuleCells::*)(const Column& column, const RuleList& list, std::size_t row) const;

    [[nodiscard]] CellView name(const Column& column, const RuleList& list, std::size_t row) const;
    [[nodiscard]] CellView note(const Column& column, const RuleList& list, std::size_t row) const;
    [[nodiscard]] CellView extension(const Column& column, const RuleList& list, std::size_t row) const;
    [[nodiscard]] CellView path(const Column& column, const RuleList& list, std::size_t row) const;
    /// The size of the record's image: width, then height, without decimals.
    [[nodiscard]] CellView size(const Column& column, const RuleList& list, std::size_t row) const;
    /// A check box for the column's field. Without a frame it is the cell itself, in its default size.
    [[nodiscard]] CellView checkBox(const Column& column, const RuleList& list, std::size_t row) const;
    [[nodiscard]] CellView templateIcon(const Column& column, const RuleList& list, std::size_t row) const;
    [[nodiscard]] CellView folderIcon(const Column& column, const RuleList& list, std::size_t row) const;
    [[nodiscard]] CellView recordIcon(const Column& column, const RuleList& list, std::size_t row) const;

    /// The name under which the table shows a rule.
    [[nodiscard]] std::string shownName(const RuleList& list, std::size_t row) const;

private:
    [[nodiscard]] std::string localized(std::string_view key) const;
    [[nodiscard]] ImagePointer imageFromRecord(const RuleRecord& record) const;

    const KnownFolders& folders_;
    const ApplicationBundle& bundle_;
    Images& images_;
};

} // namespace tarnwick
