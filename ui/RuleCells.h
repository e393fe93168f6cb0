#pragma once

#include "ui/CellView.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace tarnwick {

class ApplicationBundle;
class KnownFolders;
class RuleList;
class RuleRecord;

/// Makes the cells of the tables, a method for each kind of cell. `column` is the identifier of the cell's
/// column. A missing field shows as empty text, an off check box or an empty image. Indexes must be in range.
class RuleCells {
public:
    RuleCells(const KnownFolders& folders, const ApplicationBundle& bundle, Images& images)
        : folders_(folders), bundle_(bundle), images_(images) {}

    using Maker = CellView (RuleCells::*)(
        std::string_view column, const RuleList& list, std::size_t row) const;

    [[nodiscard]] CellView name(std::string_view column, const RuleList& list, std::size_t row) const;
    [[nodiscard]] CellView wideName(std::string_view column, const RuleList& list, std::size_t row) const;
    [[nodiscard]] CellView note(std::string_view column, const RuleList& list, std::size_t row) const;
    [[nodiscard]] CellView extension(std::string_view column, const RuleList& list, std::size_t row) const;
    [[nodiscard]] CellView path(std::string_view column, const RuleList& list, std::size_t row) const;
    /// The size of the record's image: width, then height, without decimals.
    [[nodiscard]] CellView size(std::string_view column, const RuleList& list, std::size_t row) const;

    [[nodiscard]] CellView enableBox(std::string_view column, const RuleList& list, std::size_t row) const;
    /// The same without the container around it, in its default size.
    [[nodiscard]] CellView bareEnableBox(
        std::string_view column, const RuleList& list, std::size_t row) const;
    [[nodiscard]] CellView mainMenuBox(std::string_view column, const RuleList& list, std::size_t row) const;

    [[nodiscard]] CellView templateIcon(std::string_view column, const RuleList& list, std::size_t row) const;
    [[nodiscard]] CellView folderIcon(std::string_view column, const RuleList& list, std::size_t row) const;
    [[nodiscard]] CellView recordIcon(std::string_view column, const RuleList& list, std::size_t row) const;
    [[nodiscard]] CellView actionIcon(std::string_view column, const RuleList& list, std::size_t row) const;

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
