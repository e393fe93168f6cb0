#pragma once

#include "Pool.h"

#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>

/// What the implementations of a port have in common: each contract is a set of tests that both pass, the one
/// over the platform and the one in memory.
namespace tarnwick::testing {

enum class Implementation { inMemory, overThePlatform };

inline std::string nameOf(Implementation implementation) {
    return implementation == Implementation::inMemory ? "InMemory" : "OverThePlatform";
}

inline void PrintTo(Implementation implementation, std::ostream* stream) {
    *stream << nameOf(implementation);
}

/// `Harness` makes the implementation that is asked for and does what the
/// port itself has no operation for.
template <typename Harness>
class Contract : public ::testing::TestWithParam<Implementation> {
protected:
    Pool pool_;
    Harness harness_{GetParam()};
};

} // namespace tarnwick::testing

/// Holds both implementations to a contract.
#define TARNWICK_BOTH_IMPLEMENTATIONS(contract)                                                              \
    INSTANTIATE_TEST_SUITE_P(Every, contract,                                                                \
        ::testing::Values(Implementation::inMemory, Implementation::overThePlatform),                        \
        [](const auto& info) { return nameOf(info.param); })
