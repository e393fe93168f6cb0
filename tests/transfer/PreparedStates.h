#pragma once

#include "tests/support/InMemoryPlatform.h"

#include <string>
#include <vector>

namespace tarnwick::testing {

/// Something that a user's settings may look like: what the stores and the template folder hold.
struct PreparedState {
    std::string name;
    void (*prepare)(InMemoryPlatform& platform);
};

[[nodiscard]] const std::vector<PreparedState>& preparedStates();

void PrintTo(const PreparedState& state, std::ostream* stream);

} // namespace tarnwick::testing
