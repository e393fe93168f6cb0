#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

class ApplicationBundle;

/// What a control of a table says of itself to those who do not see it: what it does or shows, and for which
/// row. Empty for an unknown column.
///
/// `name` is the row's own name as the table shows it. A row without one is named by its number; a row whose
/// name `isRepeated` in another row, by both.
[[nodiscard]] std::string rowControlLabel(const ApplicationBundle& bundle, std::string_view column,
    std::string_view name, long row, bool isRepeated);

} // namespace tarnwick
