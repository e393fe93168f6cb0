#include "StandInTest.h"

#include <filesystem>

namespace tarnwick::standins {
namespace {

class AdministrationTest : public StandInTest {
protected:
    AdministrationTest() { std::filesystem::create_directories(folder_); }
    ~AdministrationTest() override { std::filesystem::remove_all(folder_); }

    void carry(const char* name) {
        std::filesystem::create_directory(folder_ / name);
        answers().plugInsFolder = folder_.string();
    }

private:
    std::filesystem::path folder_ = std::filesystem::temp_directory_path() / "PlugIns";
};

TEST_F(AdministrationTest, AnApplicationWithoutAFolderForExtensionsCarriesNone) {
    EXPECT_FALSE(carriesExtension());
    answers().plugInsFolder = "/nowhere";
    EXPECT_FALSE(carriesExtension());
}

TEST_F(AdministrationTest, OnlyAnExtensionAmongWhatIsThereCounts) {
    carry("Other.bundle");
    EXPECT_FALSE(carriesExtension());
    carry("Menu.appex");
    EXPECT_TRUE(carriesExtension());
}

TEST_F(AdministrationTest, AKeyIsForcedWhenTheSystemSaysSo) {
    answers().forcedKey = "enableCreateNewFile";
    EXPECT_TRUE(isForced("enableCreateNewFile"));
    EXPECT_FALSE(isForced("enableCommonPath"));
    EXPECT_EQ(calls(),
        (Calls{"objectIsForcedForKey(enableCreateNewFile)", "objectIsForcedForKey(enableCommonPath)"}));
}

} // namespace
} // namespace tarnwick::standins
