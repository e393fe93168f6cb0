#pragma once

#include <cstdio>
#include <cstdlib>

namespace tarnwick::fuzz {

/// Ends the run, as a sanitizer would, when something that must hold does not.
inline void require(bool holds, const char* what) {
    if (!holds) {
        std::fprintf(stderr, "does not hold: %s\n", what);
        std::abort();
    }
}

} // namespace tarnwick::fuzz
