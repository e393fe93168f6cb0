#include "editing/ListChange.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

namespace tarnwick {
namespace {

auto at(auto& records, std::size_t index) {
    return records.begin() + static_cast<std::ptrdiff_t>(index);
}

std::optional<PlistValue> valueOf(const RuleRecord& record, std::string_view field) {
    const auto* value = record.value(field);
    return value ? std::optional(*value) : std::nullopt;
}

RuleRecord with(const RuleRecord& record, std::string_view field, const std::optional<PlistValue>& value) {
    if (valueOf(record, field) == value) {
        return record;
    }
    return value ? record.with(field, *value) : record.without(field);
}

} // namespace

ListChange::Change ListChange::between(const Records& from, const Records& to) {
    const auto shorter = std::min(from.size(), to.size());
    std::size_t first = 0;
    while (first < shorter && from[first] == to[first]) {
        ++first;
    }
    std::size_t same = 0;
    while (same < shorter - first && from[from.size() - 1 - same] == to[to.size() - 1 - same]) {
        ++same;
    }
    const auto fromEnd = from.size() - same;
    const auto toEnd = to.size() - same;
    if (fromEnd == toEnd && toEnd - first > 1) {
        if (const auto moved = movedBetween(from, to, first, toEnd - 1)) {
            return *moved;
        }
        if (auto field = fieldBetween(from, to, first, toEnd - 1)) {
            return *std::move(field);
        }
    }
    return Exchanged{first, fromEnd - first, Records(at(to, first), at(to, toEnd))};
}

bool ListChange::isEmpty() const {
    const auto* exchanged = std::get_if<Exchanged>(&change_);
    return exchanged && exchanged->count == 0 && exchanged->records.empty();
}

std::optional<ListChange::Moved> ListChange::movedBetween(
    const Records& from, const Records& to, std::size_t first, std::size_t last) {
    if (from[first] == to[last] && std::equal(at(from, first + 1), at(from, last + 1), at(to, first))) {
        return Moved{first, last};
    }
    if (from[last] == to[first] && std::equal(at(from, first), at(from, last), at(to, first + 1))) {
        return Moved{last, first};
    }
    return std::nullopt;
}

std::optional<ListChange::FieldChanged> ListChange::fieldBetween(
    const Records& from, const Records& to, std::size_t first, std::size_t last) {
    const auto field = from[first].onlyDifference(to[first]);
    if (!field) {
        return std::nullopt;
    }
    FieldChanged changed{first, *field, {}};
    for (auto row = first; row <= last; ++row) {
        if (!(from[row] == to[row]) && from[row].onlyDifference(to[row]) != field) {
            return std::nullopt;
        }
        auto value = valueOf(to[row], *field);
        if (changed.runs.empty() || changed.runs.back().value != value) {
            changed.runs.push_back({0, std::move(value)});
        }
        ++changed.runs.back().count;
    }
    return changed;
}

ListChange::Records ListChange::applied(Records from) const {
    if (const auto* exchanged = std::get_if<Exchanged>(&change_)) {
        from.erase(at(from, exchanged->first), at(from, exchanged->first + exchanged->count));
        from.insert(at(from, exchanged->first), exchanged->records.begin(), exchanged->records.end());
    } else if (const auto* moved = std::get_if<Moved>(&change_)) {
        auto record = std::move(from[moved->from]);
        from.erase(at(from, moved->from));
        from.insert(at(from, moved->to), std::move(record));
    } else if (const auto* changed = std::get_if<FieldChanged>(&change_)) {
        auto row = changed->first;
        for (const auto& run : changed->runs) {
            for (std::size_t number = 0; number < run.count; ++number, ++row) {
                from[row] = with(from[row], changed->field, run.value);
            }
        }
    }
    return from;
}

std::optional<std::size_t> ListChange::placeOf(std::size_t row) const {
    if (const auto* exchanged = std::get_if<Exchanged>(&change_)) {
        const auto end = exchanged->first + exchanged->count;
        if (row >= end) {
            return row - exchanged->count + exchanged->records.size();
        }
        const auto isEdited = exchanged->count == 1 && exchanged->records.size() == 1;
        return row < exchanged->first || isEdited ? std::optional(row) : std::nullopt;
    }
    if (const auto* moved = std::get_if<Moved>(&change_)) {
        if (row == moved->from) {
            return moved->to;
        }
        const auto among = row > moved->from ? row - 1 : row;
        return among >= moved->to ? among + 1 : among;
    }
    return row;
}

std::optional<std::size_t> ListChange::insertedRow() const {
    const auto* exchanged = std::get_if<Exchanged>(&change_);
    const auto isOne = exchanged && exchanged->count == 0 && exchanged->records.size() == 1;
    return isOne ? std::optional(exchanged->first) : std::nullopt;
}

} // namespace tarnwick
