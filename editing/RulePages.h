#pragma once

#include "platform/WindowControls.h"
#include "prefs/RuleCategory.h"
#include "prefs/RuleList.h"

#include <array>
#include <cstddef>

namespace tarnwick {

class LocalPreferences;
class RulePublisher;

/// What an editing operation needs of a category: its list, its table, its remove button, and the steps that
/// follow a change. A missing table or button makes the step that needs it do nothing.
class RulePages {
public:
    RulePages(RuleLists& lists, LocalPreferences& local, RulePublisher& publisher)
        : lists_(lists), local_(local), publisher_(publisher) {}

    void connect(const std::array<TableControl*, 5>& tables,
        const std::array<ButtonControl*, 5>& removeButtons, RowEditing* rowEditing) {
        tables_ = tables;
        removeButtons_ = removeButtons;
        rowEditing_ = rowEditing;
    }

    /// Ends an edit in progress, whose text then reaches the record of its own row. Everything that changes a
    /// list for another reason does this first of all: afterwards rows may stand elsewhere.
    void endEditing();

    [[nodiscard]] RuleList& list(RuleCategory category) { return lists_[category]; }

    /// Writes the whole list into `LocalPreferences`, leaving it to the platform when that reaches the disk.
    void store(RuleCategory category);
    /// Writes the whole list into `LocalPreferences`, then synchronises.
    void storeAndSynchronize(RuleCategory category);
    /// Writes the enabled records into `SharedPreferences`, then synchronises.
    void publish(RuleCategory category);

    void reload(RuleCategory category);
    /// -1 when no row is selected or there is no table.
    [[nodiscard]] long selectedRow(RuleCategory category) const;
    /// 0 when there is no table.
    [[nodiscard]] long numberOfRows(RuleCategory category) const;
    void selectRow(RuleCategory category, long row);
    void deselectAll(RuleCategory category);
    void setRemoveButtonEnabled(RuleCategory category, bool enabled);

private:
    [[nodiscard]] TableControl* table(RuleCategory category) const {
        return tables_[static_cast<std::size_t>(category)];
    }

    RuleLists& lists_;
    LocalPreferences& local_;
    RulePublisher& publisher_;
    std::array<TableControl*, 5> tables_{};
    std::array<ButtonControl*, 5> removeButtons_{};
    RowEditing* rowEditing_ = nullptr;
};

} // namespace tarnwick
