#pragma once

#include "prefs/RuleCategory.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

class FoldedRows;

/// Where to look, beginning with the selected row.
enum class SearchStep { here, next, previous };

/// Looks for a text in the rows of a page: in names, extensions, folders and notes as they are shown. Case
/// and diacritics do not count. Behind the last row comes the first.
class RuleSearch {
public:
    explicit RuleSearch(const FoldedRows& rows) : rows_(rows) {}

    void lookFor(std::string_view text);
    [[nodiscard]] bool hasText() const { return !text_.empty(); }

    /// The row that a step leads to; nothing when no row has the text. Without a selected row, -1, the search
    /// begins at the end of the table that it leads away from.
    [[nodiscard]] std::optional<long> find(RuleCategory category, long selected, SearchStep step) const;

    struct Count {
        /// Of the selected row among those that have the text, from 1; 0 when it has not.
        std::size_t place = 0;
        std::size_t all = 0;
        bool operator==(const Count&) const = default;
    };
    [[nodiscard]] Count count(RuleCategory category, long selected) const;

private:
    /// The rows that have the text, in order.
    [[nodiscard]] const std::vector<long>& found(RuleCategory category) const;

    /// Of the list that was looked through last.
    struct Found {
        RuleCategory category;
        std::size_t revision;
        std::vector<long> rows;
    };

    const FoldedRows& rows_;
    std::string text_;
    mutable std::optional<Found> found_;
};

} // namespace tarnwick
