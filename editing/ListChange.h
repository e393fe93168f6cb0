#pragma once

#include "prefs/RuleRecord.h"

#include <cstddef>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace tarnwick {

/// What makes one state of a list out of another, and no more than that: thousands of them fit into memory
/// beside a list of ten thousand records. It fits the state alone that it was made for.
class ListChange {
public:
    using Records = std::vector<RuleRecord>;

    ListChange(const Records& from, const Records& to) : change_(between(from, to)) {}

    /// The two states are equal.
    [[nodiscard]] bool isEmpty() const;
    [[nodiscard]] Records applied(Records from) const;
    /// Where the record of that row stands in the other state; nothing when it is not in there.
    [[nodiscard]] std::optional<std::size_t> placeOf(std::size_t row) const;
    /// The row that the other state has more, when that is all.
    [[nodiscard]] std::optional<std::size_t> insertedRow() const;

private:
    /// Another stretch of records in place of one.
    struct Exchanged {
        std::size_t first;
        std::size_t count;
        Records records;
    };
    /// One record in another place.
    struct Moved {
        std::size_t from;
        std::size_t to;
    };
    /// One field of neighbouring records has the same value in all of them; nothing: they lack it.
    struct Run {
        std::size_t count;
        std::optional<PlistValue> value;
    };
    struct FieldChanged {
        std::size_t first;
        std::string field;
        std::vector<Run> runs;
    };

    using Change = std::variant<Exchanged, Moved, FieldChanged>;

    [[nodiscard]] static Change between(const Records& from, const Records& to);
    [[nodiscard]] static std::optional<Moved> movedBetween(
        const Records& from, const Records& to, std::size_t first, std::size_t last);
    [[nodiscard]] static std::optional<FieldChanged> fieldBetween(
        const Records& from, const Records& to, std::size_t first, std::size_t last);

    Change change_;
};

} // namespace tarnwick
