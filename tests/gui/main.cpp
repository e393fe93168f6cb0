#include "tests/gui/Driver.h"

#include <gtest/gtest.h>

int main(int argc, char* argv[]) {
    ::testing::InitGoogleTest(&argc, argv);
    return tarnwick::gui::runInApplication(argc, argv, [] { return RUN_ALL_TESTS(); });
}
