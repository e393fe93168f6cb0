// Sequences of edits through the controller, each also done to the model of the editing tests.

#include "tests/fuzz/FuzzInput.h"
#include "tests/fuzz/Require.h"
#include "tests/model/RandomWalk.h"

#include <csignal>
#include <cstdlib>

namespace {

using namespace tarnwick;

constexpr int longestWalk = 48;

class FuzzedWalk final : public tarnwick::testing::RandomWalk {
public:
    FuzzedWalk(tarnwick::testing::Start start, fuzz::FuzzInput& input)
        : RandomWalk(start, [&input](long below) { return input.pick(below); }), input_(input) {}

    void TestBody() override {
        for (int number = 0; number < longestWalk && !input_.atEnd(); ++number) {
            step();
        }
        check();
        goBackAndForth();
        fuzz::require(!::testing::Test::HasFailure(), "screen, stores and files are as the model has them");
    }

private:
    fuzz::FuzzInput& input_;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    // A failed expectation ends the run at once, where it failed: by a trap, after which nobody keeps the
    // input.
    ::testing::GTEST_FLAG(break_on_failure) = true;
    std::signal(SIGTRAP, [](int) { std::abort(); });
    fuzz::FuzzInput input(bytes, size);
    const auto start = input.pick(2) == 0 ? tarnwick::testing::Start::fresh : tarnwick::testing::Start::used;
    FuzzedWalk(start, input).TestBody();
    return 0;
}
