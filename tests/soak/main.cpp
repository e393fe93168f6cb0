// Edits at random until it is killed.

#include "tests/soak/EditingApplication.h"
#include "tests/soak/Journal.h"
#include "tests/soak/RandomEdits.h"

#include <cstdlib>
#include <memory>

int main(int argc, char* argv[]) {
    using namespace tarnwick::soak;
    const auto edits = std::make_shared<RandomEdits>(setting("TARNWICK_USER_FOLDER", ""),
        static_cast<unsigned>(std::atoi(setting("TARNWICK_SOAK_SEED", "1").c_str())));
    return runApplication(argc, argv, [edits] { return edits->edit(); });
}
