#pragma once

#include "ui/EnabledRules.h"
#include "ui/RepeatedNames.h"
#include "ui/RuleCells.h"

#include <string>
#include <string_view>

namespace tarnwick {

class ApplicationBundle;
class RuleLists;

/// What the tables show, row by row. A row that the list does not have, or a column that the table does not
/// have, gives an empty cell and an empty label.
class RuleRows {
public:
    RuleRows(
        const RuleLists& lists, const KnownFolders& folders, const ApplicationBundle& bundle, Images& images)
        : lists_(lists), bundle_(bundle), cells_(folders, bundle, images), repeatedNames_(lists) {}

    [[nodiscard]] long count(RuleCategory category) const;
    /// How many are on, and the words for it.
    [[nodiscard]] EnabledRules enabled(RuleCategory category) const;
    [[nodiscard]] std::string enabledText(RuleCategory category) const;
    [[nodiscard]] CellView cell(RuleCategory category, std::string_view column, long row) const;

    /// What that cell's control says of itself to those who do not see it: what it does or shows, and for
    /// which row. A row without a name is named by its number; a row whose name another one has too, by both.
    [[nodiscard]] std::string label(RuleCategory category, std::string_view column, long row) const;

private:
    [[nodiscard]] std::string spokenName(RuleCategory category, std::size_t row) const;

    const RuleLists& lists_;
    const ApplicationBundle& bundle_;
    RuleCells cells_;
    RepeatedNames repeatedNames_;
};

} // namespace tarnwick
