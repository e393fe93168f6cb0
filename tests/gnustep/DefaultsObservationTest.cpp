#include "Probe.h"

#include <gtest/gtest.h>

using namespace tarnwick::probe;

TEST(DefaultsObservation, TellsEachChangeOfTheKeyOnceAndNothingElse) {
    EXPECT_EQ(observedChanges(), (std::vector<std::string>{"watched=1", "-", "-", "watched=7", "watched=text",
                                     "watched=by value", "watched=<null>", "-"}));
}
