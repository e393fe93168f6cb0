#include "editing/DropFiles.h"
#include "tests/support/EditingFixture.h"

namespace tarnwick::testing {
namespace {

const std::vector<DroppedItem> mixture{{"/a/Folder", true}, {"/a/File.txt", false}, {"/a/Picture.png", false},
    {"/a/LOUD.PNG", false}, {"/a/png", false}};

class DropFilesTest : public EditingFixture {
protected:
    void SetUp() override { launch(); }
    /// The last components of what the category takes of the mixture.
    [[nodiscard]] std::vector<std::string> taken(RuleCategory category) const {
        std::vector<std::string> names;
        for (const auto& path : droppablePaths(category, mixture)) {
            names.push_back(path.substr(3));
        }
        return names;
    }
    using Names = std::vector<std::string>;
};

TEST_F(DropFilesTest, FolderListsTakeFoldersAlone) {
    EXPECT_EQ(taken(RuleCategory::copyFilesTo), Names{"Folder"});
    EXPECT_EQ(taken(RuleCategory::commonPath), Names{"Folder"});
}

TEST_F(DropFilesTest, TheTemplateListTakesEveryFileAndNoFolder) {
    EXPECT_EQ(taken(RuleCategory::createNewFile), (Names{"File.txt", "Picture.png", "LOUD.PNG", "png"}));
}

TEST_F(DropFilesTest, TheIconListTakesPngFilesInAnyCaseAlone) {
    EXPECT_EQ(taken(RuleCategory::customIcon), (Names{"Picture.png", "LOUD.PNG"}));
}

TEST_F(DropFilesTest, TheListOfFurtherItemsTakesNothing) {
    EXPECT_TRUE(taken(RuleCategory::others).empty());
}

TEST_F(DropFilesTest, ADropIsAddedAsIfChosenButRemembersNoFolder) {
    editing_.adding.addDropped(RuleCategory::commonPath, mixture);
    EXPECT_EQ(texts(localList(RuleCategory::commonPath), "realPath"), Names{"/a/Folder"});
    EXPECT_EQ(texts(sharedList(RuleCategory::commonPath), "displayName"), Names{"Folder"});
    EXPECT_EQ(platform_.preferences.local.count("prePathOfCommonPath"), 0U);
}

TEST_F(DropFilesTest, ADropOfNothingThatIsTakenChangesNothing) {
    EXPECT_FALSE(editing_.adding.addDropped(RuleCategory::commonPath, {{"/a/File.txt", false}}));
    EXPECT_FALSE(editing_.adding.addDropped(RuleCategory::others, mixture));
    EXPECT_TRUE(platform_.log.lines().empty());
}

} // namespace
} // namespace tarnwick::testing
