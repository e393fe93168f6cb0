#pragma once

#include "values/PlistValue.h"

#include <optional>
#include <string>

namespace tarnwick {

/// Reads property-list files of any format. Implementations: Foundation, in memory.
class PropertyLists {
public:
    virtual ~PropertyLists() = default;
    /// The file's value; nothing when it cannot be read or is malformed.
    [[nodiscard]] virtual std::optional<PlistValue> read(const std::string& path) const = 0;
};

} // namespace tarnwick
