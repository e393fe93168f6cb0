#pragma once

#include "ui/FoldedRows.h"
#include "ui/RuleSearch.h"
#include "ui/TypeSelect.h"

#include <string>
#include <string_view>

namespace tarnwick {

class ApplicationBundle;
class ListEditor;
class SettingsWindow;

/// Finds rules in the tables and selects them, by typing in a table and from the find bar above it. The rows
/// keep their places and none is hidden.
class Finding {
public:
    Finding(const RuleLists& lists, const RuleRows& rows, const ApplicationBundle& bundle, ListEditor& editor,
        SettingsWindow& window)
        : bundle_(bundle), editor_(editor), window_(window), folded_(lists, rows), typeSelect_(folded_),
          search_(folded_) {}

    /// Characters typed in the category's table, at a time in seconds. False when they were not meant for
    /// this: the key has its other meaning.
    [[nodiscard]] bool typed(RuleCategory category, std::string_view characters, double seconds);
    /// The same for the key that erases the last character.
    [[nodiscard]] bool erased(RuleCategory category, double seconds);

    /// The text in the find bar is another one. Selects the first row that has it, from the selected row on.
    void lookFor(RuleCategory category, std::string_view text);
    /// Whether there is a text to look for.
    [[nodiscard]] bool canStep() const { return search_.hasText(); }
    /// Selects the next or the previous row that has the text.
    void step(RuleCategory category, SearchStep step);
    /// What the find bar says of what was found: "2 of 7", or without a selected one among them how many
    /// there are. Empty without a text.
    [[nodiscard]] std::string count(RuleCategory category) const;

private:
    void select(RuleCategory category, std::optional<long> row);

    const ApplicationBundle& bundle_;
    ListEditor& editor_;
    SettingsWindow& window_;
    FoldedRows folded_;
    TypeSelect typeSelect_;
    RuleSearch search_;
};

} // namespace tarnwick
