#pragma once

#include <array>
#include <cstddef>
#include <utility>

namespace tarnwick {

/// A value for each member of an enumeration whose members count up from 0, and indexed by these alone. Built
/// from exactly as many values as there are members: one that is added later is asked for wherever such a
/// table stands.
template <typename Enum, std::size_t count, typename Value>
class EnumTable {
public:
    template <typename... Values>
    requires(sizeof...(Values) == count) constexpr explicit EnumTable(Values&&... values)
        : values_{{Value(std::forward<Values>(values))...}} {}

    /// `make` is called with each member, in order.
    template <typename Make>
    [[nodiscard]] static EnumTable madeBy(const Make& make) {
        return madeBy(make, std::make_index_sequence<count>());
    }

    [[nodiscard]] constexpr const Value& operator[](Enum member) const { return values_[indexOf(member)]; }
    [[nodiscard]] constexpr Value& operator[](Enum member) { return values_[indexOf(member)]; }

    [[nodiscard]] constexpr auto begin() const { return values_.begin(); }
    [[nodiscard]] constexpr auto end() const { return values_.end(); }
    [[nodiscard]] constexpr auto begin() { return values_.begin(); }
    [[nodiscard]] constexpr auto end() { return values_.end(); }

private:
    template <typename Make, std::size_t... indexes>
    static EnumTable madeBy(const Make& make, std::index_sequence<indexes...>) {
        return EnumTable(make(static_cast<Enum>(indexes))...);
    }
    static constexpr std::size_t indexOf(Enum member) { return static_cast<std::size_t>(member); }

    std::array<Value, count> values_;
};

} // namespace tarnwick
