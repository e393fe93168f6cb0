#pragma once

#include "editing/RuleTables.h"
#include "tests/support/CallLog.h"

#include <functional>
#include <string>

namespace tarnwick::testing {

/// A table that counts its rows through `rowCount` when it is reloaded, as a real one asks its data source,
/// and its remove button.
struct InMemoryTable {
    long selected = -1;
    long rows = 0;
    std::function<long()> rowCount;
    bool canRemove = true;
};

/// The tables, for whichever port has them. Logs "end edit" when it ends one, "reload TABLE", "select TABLE
/// ROW", "scroll TABLE ROW", "deselect TABLE", "enable remove TABLE" and "disable remove TABLE", each table
/// named after its category.
template <typename Port>
class InMemoryTablesOf : public Port {
public:
    explicit InMemoryTablesOf(CallLog& log) : log_(log) {}

    /// The edit in progress: gives the controller its text, as the field does. Empty: none.
    std::function<void()> openEdit;

    [[nodiscard]] InMemoryTable& table(RuleCategory category) { return tables_[category]; }

    void endEditing() override {
        if (const auto ended = std::exchange(openEdit, nullptr)) {
            log_.add("end edit");
            ended();
        }
    }
    void reload(RuleCategory category) override {
        log_.add("reload " + nameOf(category));
        auto& table = tables_[category];
        table.rows = table.rowCount ? table.rowCount() : table.rows;
        table.selected = table.selected < table.rows ? table.selected : -1;
    }
    long selectedRow(RuleCategory category) const override { return tables_[category].selected; }
    long numberOfRows(RuleCategory category) const override { return tables_[category].rows; }
    void selectRow(RuleCategory category, long row) override {
        log_.add("select " + nameOf(category) + " " + std::to_string(row));
        if (row >= 0 && row < tables_[category].rows) {
            tables_[category].selected = row;
        }
    }
    void scrollToRow(RuleCategory category, long row) override {
        log_.add("scroll " + nameOf(category) + " " + std::to_string(row));
    }
    void deselectAll(RuleCategory category) override {
        log_.add("deselect " + nameOf(category));
        tables_[category].selected = -1;
    }
    bool removeButtonIsEnabled(RuleCategory category) const override { return tables_[category].canRemove; }
    void setRemoveButtonEnabled(RuleCategory category, bool enabled) override {
        log_.add((enabled ? "enable remove " : "disable remove ") + nameOf(category));
        tables_[category].canRemove = enabled;
    }

protected:
    [[nodiscard]] static std::string nameOf(RuleCategory category) {
        static const PerCategory<const char*> names(
            "createNewFile", "copyFilesTo", "commonPath", "customIcon", "others");
        return names[category];
    }

    CallLog& log_;

private:
    PerCategory<InMemoryTable> tables_ =
        PerCategory<InMemoryTable>::madeBy([](RuleCategory) { return InMemoryTable(); });
};

using InMemoryTables = InMemoryTablesOf<RuleTables>;

} // namespace tarnwick::testing
