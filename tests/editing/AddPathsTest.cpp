#include "tests/support/EditingFixture.h"

namespace tarnwick::testing {
namespace {

/// Drops, and answers of the chooser that lead to no record.
class AddPathsTest : public EditingFixture {
protected:
    AddPathsTest() { launch(); }
};

TEST_F(AddPathsTest, AreAddedStoredReloadedAndPublishedButRememberNoFolder) {
    editing_.adding.addDropped(RuleCategory::commonPath, {{"/a/Zoo", true}, {"/b/Attic", true}});
    EXPECT_EQ(texts(localList(RuleCategory::commonPath), "displayName"),
        (std::vector<std::string>{"Zoo", "Attic"}));
    EXPECT_EQ(platform_.log.lines(),
        (std::vector<std::string>{"local set arrOfCommonPath", "local synchronise", "reload commonPath",
            "shared open H7Q2ZK5RX9.org.halvane.Tarnwick", "shared set arrOfCommonPath", "shared synchronise",
            "scroll commonPath 1"}));
}

TEST_F(AddPathsTest, NoPathsDoNothing) {
    for (const auto category : allRuleCategories) {
        EXPECT_FALSE(editing_.adding.addDropped(category, {}));
    }
    EXPECT_TRUE(platform_.log.lines().empty());
}

TEST_F(AddPathsTest, AConfirmedChooserWithoutPathsDoesNothing) {
    for (const auto category : allRuleCategories) {
        editing_.adding.add(category);
        platform_.log.clear();
        platform_.panels.confirm({});
        EXPECT_TRUE(platform_.log.lines().empty());
    }
}

TEST_F(AddPathsTest, ATemplateOfTheRootOrOfNothingAddsNothing) {
    editing_.adding.addDropped(RuleCategory::createNewFile, {{"/", false}, {"", false}});
    EXPECT_EQ(rows(RuleCategory::createNewFile), 15);
}

TEST_F(AddPathsTest, WithoutAGroupContainerTemplatesAreSkippedAndTheFolderIsStillRemembered) {
    platform_.folders.container.reset();
    platform_.files.files["/home/Letter.txt"] = "letter";
    editing_.adding.add(RuleCategory::createNewFile);
    platform_.panels.confirm({"/home/Letter.txt"});
    EXPECT_EQ(rows(RuleCategory::createNewFile), 15);
    EXPECT_TRUE(platform_.log.linesWith("copy ").empty());
    EXPECT_EQ(local("prePathOfCreateNewFile"), PlistValue("/home"));
}

TEST_F(AddPathsTest, WithoutAGroupContainerTheOthersChooserStartsWhereThePlatformLikes) {
    platform_.folders.container.reset();
    editing_.adding.add(RuleCategory::others);
    EXPECT_EQ(platform_.panels.requests.back().startFolder, std::nullopt);
}

TEST_F(AddPathsTest, ReadablePicturesAreAddedInOrderAroundAnUnreadableOne) {
    platform_.images.pictureFiles["/home/One.png"] = "tiff of one";
    platform_.images.pictureFiles["/home/Empty.png"] = "";
    platform_.images.pictureFiles["/home/Two.png"] = "tiff of two";
    editing_.adding.add(RuleCategory::customIcon);
    platform_.panels.confirm({"/gone/Broken.png", "/home/One.png", "/home/Empty.png", "/home/Two.png"});
    const auto names = texts(localList(RuleCategory::customIcon), "displayName");
    ASSERT_EQ(names.size(), 22U);
    EXPECT_EQ(names[20], "One.png");
    EXPECT_EQ(names[21], "Two.png");
    EXPECT_EQ(local("prePathOfCustomIcon"), PlistValue("/gone"));
}

TEST_F(AddPathsTest, AnItemInTheRootRemembersTheRoot) {
    editing_.adding.add(RuleCategory::commonPath);
    platform_.panels.confirm({"/Volumes"});
    EXPECT_EQ(local("prePathOfCommonPath"), PlistValue("/"));
}

} // namespace
} // namespace tarnwick::testing
