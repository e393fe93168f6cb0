#include "ui/CountText.h"

namespace tarnwick {
namespace {

/// What a placeholder at the head of a text says: how long it is, and which value it stands for. Its length
/// is 0 where none begins.
struct Placeholder {
    std::size_t length = 0;
    std::size_t value = 0;
};

Placeholder placeholderAt(std::string_view text, std::size_t next) {
    if (text.starts_with("%@")) {
        return {2, next};
    }
    const bool isNumbered =
        text.size() >= 4 && text[0] == '%' && text[1] >= '1' && text[1] <= '9' && text.substr(2, 2) == "$@";
    return isNumbered ? Placeholder{4, static_cast<std::size_t>(text[1] - '1')} : Placeholder{};
}

} // namespace

std::string filled(std::string_view format, std::initializer_list<std::string_view> values) {
    std::string text;
    std::size_t next = 0;
    while (!format.empty()) {
        const auto placeholder = placeholderAt(format, next);
        if (placeholder.length == 0 || placeholder.value >= values.size()) {
            text += format.front();
            format.remove_prefix(1);
            continue;
        }
        text += values.begin()[placeholder.value];
        next = placeholder.value + 1;
        format.remove_prefix(placeholder.length);
    }
    return text;
}

} // namespace tarnwick
