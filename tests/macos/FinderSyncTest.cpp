#include "StandInTest.h"

#include "platform/FinderSync.h"

namespace tarnwick::standins {
namespace {

class FinderSyncTest : public StandInTest {};

TEST_F(FinderSyncTest, TellsWhatTheSystemSaysOfTheExtension) {
    for (const bool enabled : {true, false}) {
        answers().extensionEnabled = enabled;
        EXPECT_EQ(makeFinderSync()->isExtensionEnabled(), enabled);
    }
    EXPECT_EQ(calls(), (Calls{"isExtensionEnabled", "isExtensionEnabled"}));
}

TEST_F(FinderSyncTest, ShowsTheManagementInterface) {
    makeFinderSync()->showExtensionManagementInterface();
    EXPECT_EQ(calls(), Calls{"showExtensionManagementInterface"});
}

} // namespace
} // namespace tarnwick::standins
