#pragma once

#include "prefs/RuleCategory.h"

namespace tarnwick {

/// The tables of the window as editing acts on them, each with its remove button. A table or button that the
/// window lacks makes what is asked of it do nothing. Implementations: the window over AppKit's controls, in
/// memory.
class RuleTables {
public:
    virtual ~RuleTables() = default;
    /// Ends an edit in progress as the Return key does: its text reaches the controller, which stores it,
    /// before this returns. Nothing happens while no row is being edited.
    virtual void endEditing() = 0;

    virtual void reload(RuleCategory category) = 0;
    /// -1 when no row is selected.
    [[nodiscard]] virtual long selectedRow(RuleCategory category) const = 0;
    [[nodiscard]] virtual long numberOfRows(RuleCategory category) const = 0;
    /// Selects this row alone; a row that the table does not have changes nothing.
    virtual void selectRow(RuleCategory category, long row) = 0;
    /// Brings the row into sight and leaves the selection as it is.
    virtual void scrollToRow(RuleCategory category, long row) = 0;
    virtual void deselectAll(RuleCategory category) = 0;
    [[nodiscard]] virtual bool removeButtonIsEnabled(RuleCategory category) const = 0;
    virtual void setRemoveButtonEnabled(RuleCategory category, bool enabled) = 0;
};

} // namespace tarnwick
