#include "StandInTest.h"

namespace tarnwick::standins {
namespace {

class ExtensionStateTest : public StandInTest {};

TEST_F(ExtensionStateTest, TellsWhatTheSystemSaysOfTheExtension) {
    for (const bool enabled : {true, false}) {
        answers().extensionEnabled = enabled;
        EXPECT_EQ(tarnwick::isExtensionEnabled(), enabled);
    }
    EXPECT_EQ(calls(), (Calls{"isExtensionEnabled", "isExtensionEnabled"}));
}

TEST_F(ExtensionStateTest, ShowsTheManagementInterface) {
    tarnwick::showExtensionManagementInterface();
    EXPECT_EQ(calls(), Calls{"showExtensionManagementInterface"});
}

} // namespace
} // namespace tarnwick::standins
