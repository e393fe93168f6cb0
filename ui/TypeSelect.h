#pragma once

#include "prefs/RuleCategory.h"

#include <optional>
#include <string>
#include <string_view>

namespace tarnwick {

class FoldedRows;

/// Typing in a table: what is typed without a pause is the beginning of the name of the row that is wanted.
/// Case and diacritics do not count. What was typed last can be taken back.
class TypeSelect {
public:
    explicit TypeSelect(const FoldedRows& rows) : rows_(rows) {}

    /// Longer than this between two characters, and the second one begins anew.
    static constexpr double pauseSeconds = 1;

    struct Answer {
        /// Not so for a space or an erasing key that nothing was typed before: they have other meanings in a
        /// table.
        bool isTaken = false;
        /// To be selected: the first whose name begins with what has been typed. None: the selection stays.
        std::optional<long> row;
    };

    /// Characters typed while `selected`, or -1, is the selected row. Another selection than the last
    /// answer's means that something else has happened in between, which begins anew as a pause does.
    /// `seconds` count from any point of time.
    [[nodiscard]] Answer type(
        RuleCategory category, long selected, std::string_view characters, double seconds);
    /// The same for the key that erases the last character. As long as it comes without a pause it means
    /// typing, also when nothing is left of that.
    [[nodiscard]] Answer erase(RuleCategory category, long selected, double seconds);

private:
    [[nodiscard]] bool goesOn(RuleCategory category, long selected, double seconds) const;
    [[nodiscard]] Answer select(long selected, double seconds);

    const FoldedRows& rows_;
    std::string typed_;
    std::optional<RuleCategory> category_;
    long selected_ = -1;
    double seconds_ = 0;
};

} // namespace tarnwick
