#include "Files.h"
#include "Probe.h"

#include <gtest/gtest.h>

using namespace tarnwick::probe;

TEST(FolderLocations, MakesTheContainerOfAGroup) {
    const auto path = groupContainer("group.test");
    EXPECT_EQ(path, libraryFolder() + "/Group Containers/group.test");
    EXPECT_TRUE(exists(path));
}

TEST(FolderLocations, HasNoContainerForWhatIsNoName) {
    EXPECT_EQ(groupContainer(""), "");
    EXPECT_EQ(groupContainer("../outside"), "");
}

TEST(FolderLocations, MakesTheFolderOfApplicationScripts) {
    const auto path = scriptsFolder();
    EXPECT_EQ(path.rfind(libraryFolder() + "/Application Scripts/", 0), 0U) << path;
    EXPECT_TRUE(exists(path));
}
