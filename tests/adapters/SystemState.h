#pragma once

#include "values/PlistValue.h"

#include <string>

namespace tarnwick::testing {

/// What only macOS could answer, for the adapters here: see adapters/linux/StandIns.h for the keys. For the
/// life of the object.
class SystemState {
public:
    SystemState() = default;
    ~SystemState();
    SystemState(const SystemState&) = delete;
    SystemState& operator=(const SystemState&) = delete;

    void set(const std::string& key, const PlistValue& answer);

private:
    PlistDictionary answers_;
};

} // namespace tarnwick::testing
