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
    // A domain without any value has no file to read.
    setStandardString("kept", "as it is");
    const auto run = [](const std::string& command) {
        ASSERT_EQ(std::system(("defaults " + command).c_str()), 0);
    };
    EXPECT_EQ(observedChangesByOthers([&run] { run("write org.halvane.Tarnwick watched NO"); }),
        std::vector<std::string>{"watched=NO"});
    EXPECT_EQ(observedChangesByOthers([&run] { run("delete org.halvane.Tarnwick watched"); }),
        std::vector<std::string>{"watched=<null>"});
    EXPECT_EQ(observedChangesByOthers([&run] { run("write org.halvane.Tarnwick other NO"); }),
        std::vector<std::string>());
}
