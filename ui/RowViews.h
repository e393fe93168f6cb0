#pragma once

#include "platform/Platform.h"
#include "ui/CellView.h"

#include <cstddef>
#include <string_view>

namespace tarnwick {

class RuleLists;
class RuleRecord;

/// Decides, for every column of every table, the control that shows a record. An unknown column identifier
/// gives an empty cell; a missing field shows as empty text, an off check box or an empty image. The row must
/// be in range.
class RowViews {
public:
    RowViews(const Platform& platform, const RuleLists& lists) : platform_(platform), lists_(lists) {}

    [[nodiscard]] CellView tableViewForCreateNewFile(std::string_view column, std::size_t row) const;
    [[nodiscard]] CellView tableViewForCopyTo(std::string_view column, std::size_t row) const;
    [[nodiscard]] CellView tableViewForCommonPath(std::string_view column, std::size_t row) const;
    [[nodiscard]] CellView tableViewForCustomIcon(std::string_view column, std::size_t row) const;
    [[nodiscard]] CellView tableViewForOthers(std::string_view column, std::size_t row) const;

private:
    [[nodiscard]] std::string nameText(const RuleRecord& record, std::string_view mark) const;
    [[nodiscard]] std::string localized(std::string_view key) const;
    [[nodiscard]] ImagePointer templateIcon(const RuleRecord& record) const;
    [[nodiscard]] ImagePointer imageFromRecord(const RuleRecord& record) const;
    [[nodiscard]] CellView pathCell(const RuleRecord& record) const;
    [[nodiscard]] CellView fileIconCell(const RuleRecord& record) const;

    Platform platform_;
    const RuleLists& lists_;
};

} // namespace tarnwick
