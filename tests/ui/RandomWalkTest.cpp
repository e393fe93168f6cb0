#include "tests/model/RandomWalk.h"

#include <random>
#include <tuple>

namespace tarnwick::testing {
namespace {

constexpr int stepsPerWalk = 800;

std::function<long(long)> randomPick(unsigned seed) {
    return [random = std::mt19937(seed)](
               long below) mutable { return std::uniform_int_distribution<long>(0, below - 1)(random); };
}

class RandomWalkTest : public RandomWalk, public ::testing::WithParamInterface<std::tuple<Start, unsigned>> {
protected:
    RandomWalkTest() : RandomWalk(std::get<0>(GetParam()), randomPick(std::get<1>(GetParam()))) {}
};

TEST_P(RandomWalkTest, KeepsScreenStoresAndTemplateFilesAsTheModelHasThem) {
    check();
    for (int number = 0; number < stepsPerWalk && !HasFailure(); ++number) {
        step();
        check();
        if (HasFailure()) {
            FAIL() << "at step " << number;
        }
    }
    goBackAndForth();
}

std::string seedOf(const ::testing::TestParamInfo<std::tuple<Start, unsigned>>& info) {
    return "Seed" + std::to_string(std::get<1>(info.param));
}

INSTANTIATE_TEST_SUITE_P(FromAFreshStart, RandomWalkTest,
    ::testing::Combine(::testing::Values(Start::fresh), ::testing::Values(1U, 42U, 1234U)), seedOf);
INSTANTIATE_TEST_SUITE_P(AfterLongUse, RandomWalkTest,
    ::testing::Combine(::testing::Values(Start::used), ::testing::Values(2U, 43U, 1235U)), seedOf);

} // namespace
} // namespace tarnwick::testing
