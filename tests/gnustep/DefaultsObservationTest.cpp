#include "Probe.h"

#include <gtest/gtest.h>

#include <cstdlib>

using namespace tarnwick::probe;

TEST(DefaultsObservation, TellsEachChangeOfTheKeyOnceAndNothingElse) {
    EXPECT_EQ(observedChanges(), (std::vector<std::string>{"watched=1", "-", "-", "watched=7", "watched=text",
                                     "watched=by value", "watched=<null>", "-"}));
}

TEST(DefaultsObservation, WhatAnotherProgramHasChangedIsToldOnceWhenTheDomainIsSynchronised) {
    startUp();
    const auto run = [](const std::string& command) {
        ASSERT_EQ(std::system(("defaults " + command).c_str()), 0);
    };
    EXPECT_EQ(observedChangesByOthers([&run] { run("write org.halvane.Tarnwick watched -bool NO"); }),
        std::vector<std::string>{"watched=0"});
    EXPECT_EQ(observedChangesByOthers([&run] { run("delete org.halvane.Tarnwick watched"); }),
        std::vector<std::string>{"watched=<null>"});
    EXPECT_EQ(observedChangesByOthers([&run] { run("write org.halvane.Tarnwick other -bool NO"); }),
        std::vector<std::string>());
}
