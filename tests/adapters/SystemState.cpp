#include "tests/adapters/SystemState.h"

#include "adapters/foundation/Adapters.h"
#include "platform/FileContents.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace tarnwick::testing {

SystemState::~SystemState() {
    unsetenv("TARNWICK_SYSTEM_STATE");
}

void SystemState::set(const std::string& key, const PlistValue& answer) {
    const auto path = std::string(std::getenv("TARNWICK_USER_FOLDER")) + "/system-state.plist";
    answers_.insert_or_assign(key, answer);
    EXPECT_EQ(makeFileContents()->writeList(path, PlistValue(answers_)), ListFileWriting::done);
    setenv("TARNWICK_SYSTEM_STATE", path.c_str(), 1);
}

} // namespace tarnwick::testing
