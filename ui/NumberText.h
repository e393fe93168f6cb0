#pragma once

#include <cstddef>
#include <string>

namespace tarnwick {

class ApplicationBundle;

/// The number in digits, from a thousand on in groups of three as the application's language separates them.
[[nodiscard]] std::string numberText(const ApplicationBundle& bundle, std::size_t number);

} // namespace tarnwick
