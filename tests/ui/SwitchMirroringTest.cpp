#include "prefs/PreferenceKeys.h"
#include "tests/support/SettingsFixture.h"

namespace tarnwick::testing {
namespace {

using SwitchMirroringTest = SettingsFixture;

class MirroredKeyTest : public SwitchMirroringTest, public ::testing::WithParamInterface<std::string_view> {};

TEST_P(MirroredKeyTest, IsCopiedIntoTheSuiteAsABooleanAndSynchronised) {
    launch();
    for (const bool on : {false, true}) {
        platform_.log.clear();
        platform_.preferences.userSets(GetParam(), on);
        EXPECT_EQ(shared(GetParam()), PlistValue(on));
        EXPECT_EQ(platform_.log.lines(), (std::vector<std::string>{"local set " + std::string(GetParam()),
                                             "shared open H7Q2ZK5RX9.org.halvane.Tarnwick",
                                             "shared set " + std::string(GetParam()), "shared synchronise"}));
    }
}

INSTANTIATE_TEST_SUITE_P(Every, MirroredKeyTest, ::testing::ValuesIn(mirroredKeys));

TEST_F(SwitchMirroringTest, AMirroredIntegerArrivesAsABoolean) {
    launch();
    platform_.preferences.userSets("enableMoveFilesTo", 0);
    EXPECT_EQ(shared("enableMoveFilesTo"), PlistValue(false));
}

TEST_F(SwitchMirroringTest, TheTerminalSwitchesAreNotMirrored) {
    launch();
    for (const auto* key : {"newWindowOfOpenInTerminal", "newWindowOfOpenIniTerm2"}) {
        platform_.preferences.userSets(key, false);
        EXPECT_EQ(shared(key), PlistValue(true));
    }
}

} // namespace
} // namespace tarnwick::testing
