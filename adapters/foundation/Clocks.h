#pragma once

#include "values/PlistValue.h"

#include <string>

namespace tarnwick {

/// What the system's clocks say, for the run loops of both platforms.
[[nodiscard]] double steadySeconds();
[[nodiscard]] PlistDate dateNow();
[[nodiscard]] std::string localDay();

} // namespace tarnwick
