#pragma once

#include <cstddef>
#include <functional>

namespace tarnwick::testing {

/// What was asked of the heap.
struct Allocations {
    std::size_t count = 0;
    std::size_t bytes = 0;
    bool operator==(const Allocations&) const = default;
};

/// What this program's `operator new` gave out while `work` ran, freed again or not.
[[nodiscard]] Allocations allocationsOf(const std::function<void()>& work);

} // namespace tarnwick::testing
