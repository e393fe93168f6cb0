#pragma once

#include "values/PlistValue.h"

#include <string>

namespace tarnwick {

/// What time it is. Implementations: the system's clock, in memory.
class Clock {
public:
    virtual ~Clock() = default;
    [[nodiscard]] virtual PlistDate now() const = 0;
    /// Today's date where the user is, as "2001-12-31".
    [[nodiscard]] virtual std::string today() const = 0;
};

} // namespace tarnwick
