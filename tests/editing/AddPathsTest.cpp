#include "tests/support/SettingsFixture.h"

namespace tarnwick::testing {
namespace {

/// Paths that do not come from the chooser, and answers of the chooser that lead to no record.
class AddPathsTest : public SettingsFixture {
protected:
    AddPathsTest()
        : ports_(platform_.ports()), publisher_(ports_.preferences, preferences_, lists_),
          pages_(lists_, preferences_, publisher_), addRules_(ports_, preferences_, pages_) {
        launch();
        preferences_.open(ports_.preferences);
        const auto outlets = window_.outlets();
        pages_.connect(outlets.tables, outlets.removeButtons, nullptr);
        platform_.log.clear();
    }

    Platform ports_;
    LocalPreferences preferences_;
    RuleLists lists_;
    RulePublisher publisher_;
    RulePages pages_;
    AddRules addRules_;
};

TEST_F(AddPathsTest, AreAddedStoredReloadedAndPublishedButRememberNoFolder) {
    addRules_.addPaths(RuleCategory::commonPath, {"/a/Zoo", "/b/Attic"});
    EXPECT_EQ(texts(localList(RuleCategory::commonPath), "displayName"),
        (std::vector<std::string>{"Zoo", "Attic"}));
    EXPECT_EQ(
        platform_.log.lines(), (std::vector<std::string>{"local set arrOfCommonPath", "local synchronise",
                                   "reload commonPath", "shared open H7Q2ZK5RX9.org.halvane.Tarnwick",
                                   "shared set arrOfCommonPath", "shared synchronise"}));
}

TEST_F(AddPathsTest, NoPathsDoNothing) {
    for (const auto category : allRuleCategories) {
        addRules_.addPaths(category, {});
    }
    EXPECT_TRUE(platform_.log.lines().empty());
}

TEST_F(AddPathsTest, AConfirmedChooserWithoutPathsDoesNothing) {
    for (const auto category : allRuleCategories) {
        addRules_.add(category);
        platform_.log.clear();
        platform_.openPanel.choose({});
        EXPECT_TRUE(platform_.log.lines().empty());
    }
}

TEST_F(AddPathsTest, ATemplateOfTheRootOrOfNothingAddsNothing) {
    addRules_.addPaths(RuleCategory::createNewFile, {"/", ""});
    EXPECT_TRUE(lists_[RuleCategory::createNewFile].empty());
}

TEST_F(AddPathsTest, WithoutAGroupContainerTemplatesAreSkippedAndTheFolderIsStillRemembered) {
    platform_.folders.container.reset();
    platform_.files.files["/home/Letter.txt"] = "letter";
    controller_.addCreateNewFileRule();
    platform_.openPanel.choose({"/home/Letter.txt"});
    EXPECT_EQ(controller_.numberOfRows(RuleCategory::createNewFile), 15);
    EXPECT_TRUE(platform_.log.linesWith("copy ").empty());
    EXPECT_EQ(local("prePathOfCreateNewFile"), PlistValue("/home"));
}

TEST_F(AddPathsTest, WithoutAGroupContainerTheOthersChooserStartsWhereThePlatformLikes) {
    platform_.folders.container.reset();
    controller_.addOthersRule();
    EXPECT_EQ(platform_.openPanel.requests.back().startFolder, std::nullopt);
}

TEST_F(AddPathsTest, ReadablePicturesAreAddedInOrderAroundAnUnreadableOne) {
    platform_.images.pictureFiles["/home/One.png"] = "tiff of one";
    platform_.images.pictureFiles["/home/Empty.png"] = "";
    platform_.images.pictureFiles["/home/Two.png"] = "tiff of two";
    controller_.addCustomIconRule();
    platform_.openPanel.choose({"/gone/Broken.png", "/home/One.png", "/home/Empty.png", "/home/Two.png"});
    const auto names = texts(localList(RuleCategory::customIcon), "displayName");
    ASSERT_EQ(names.size(), 22U);
    EXPECT_EQ(names[20], "One.png");
    EXPECT_EQ(names[21], "Two.png");
    EXPECT_EQ(local("prePathOfCustomIcon"), PlistValue("/gone"));
}

TEST_F(AddPathsTest, AnItemInTheRootRemembersTheRoot) {
    controller_.addCommonPathRule();
    platform_.openPanel.choose({"/Volumes"});
    EXPECT_EQ(local("prePathOfCommonPath"), PlistValue("/"));
}

} // namespace
} // namespace tarnwick::testing
