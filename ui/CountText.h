#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>

namespace tarnwick {

/// A text that tells a number, in the three forms that a language may tell apart: of none, of one, of
/// several. Keys of the localisation table, so that each language decides which of its forms are the same.
struct CountTexts {
    std::string_view none;
    std::string_view one;
    std::string_view several;

    [[nodiscard]] constexpr std::string_view formFor(std::size_t number) const {
        return number == 0 ? none : number == 1 ? one : several;
    }
};

/// The text with its placeholders filled: "%1$@" with the first value, "%2$@" with the second and so on, each
/// "%@" with the one that is next in turn. A placeholder without a value stays, and so does one in a value.
[[nodiscard]] std::string filled(std::string_view format, std::initializer_list<std::string_view> values);

} // namespace tarnwick
