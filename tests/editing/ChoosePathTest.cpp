#include "tests/support/EditingFixture.h"

namespace tarnwick::testing {
namespace {

class ChoosePathTest : public EditingFixture {
protected:
    void SetUp() override {
        storeList(RuleCategory::copyFilesTo,
            {makeRecord({{"enable", 1}, {"realPath", "/a"}, {"displayName", "First"}}),
                makeRecord({{"enable", 0}, {"realPath", "Undefined"}, {"displayName", ""}}),
                makeRecord({{"enable", 1}, {"realPath", "/c"}, {"displayName", "Third"}})});
        launch();
    }
    [[nodiscard]] const PlistArray& list() const { return localList(RuleCategory::copyFilesTo); }
};

TEST_F(ChoosePathTest, TheChosenFolderReplacesThePathAndClearsTheName) {
    editing_.pathChoosing.selectPath(RuleCategory::copyFilesTo, 2);
    platform_.panels.confirm({"/Volumes/Backup"});
    const PlistValue expected(
        PlistDictionary{{"enable", 1}, {"realPath", "/Volumes/Backup"}, {"displayName", ""}});
    EXPECT_EQ(list()[2], expected);
    EXPECT_EQ(sharedList(RuleCategory::copyFilesTo)[1], expected);
}

TEST_F(ChoosePathTest, StoresSynchronisesReloadsAndPublishesAndRemembersNoFolder) {
    editing_.pathChoosing.selectPath(RuleCategory::copyFilesTo, 0);
    platform_.log.clear();
    platform_.panels.confirm({"/Volumes/Backup"});
    EXPECT_EQ(
        platform_.log.lines(), (std::vector<std::string>{"local set arrOfCopyFilesTo", "local synchronise",
                                   "reload copyFilesTo", "shared open H7Q2ZK5RX9.org.halvane.Tarnwick",
                                   "shared set arrOfCopyFilesTo", "shared synchronise"}));
}

TEST_F(ChoosePathTest, ATargetWithoutFolderKeepsItsFlagAndCanBeSwitchedOnAfterwards) {
    editing_.pathChoosing.selectPath(RuleCategory::copyFilesTo, 1);
    platform_.panels.confirm({"/Volumes/Backup"});
    EXPECT_EQ(list()[1].dictionary()->at("enable"), PlistValue(0));
    editing_.toggling.set(RuleCategory::copyFilesTo, 1, field::enable, true);
    EXPECT_EQ(list()[1].dictionary()->at("enable"), PlistValue(1));
}

TEST_F(ChoosePathTest, CancellingChangesAndPublishesNothing) {
    editing_.pathChoosing.selectPath(RuleCategory::copyFilesTo, 0);
    platform_.log.clear();
    platform_.panels.cancel();
    EXPECT_TRUE(platform_.log.lines().empty());
}

TEST_F(ChoosePathTest, TheRowIsTheOneOfTheClickEvenWhenTheListChangesMeanwhile) {
    editing_.pathChoosing.selectPath(RuleCategory::copyFilesTo, 1);
    tables_.table(RuleCategory::copyFilesTo).selected = 0;
    editing_.removing.remove(RuleCategory::copyFilesTo);
    platform_.panels.confirm({"/Volumes/Backup"});
    EXPECT_EQ(texts(list(), "realPath"), (std::vector<std::string>{"Undefined", "/Volumes/Backup"}));
}

TEST_F(ChoosePathTest, ARowThatIsGoneWhenTheChooserClosesChangesNothing) {
    editing_.pathChoosing.selectPath(RuleCategory::copyFilesTo, 2);
    tables_.table(RuleCategory::copyFilesTo).selected = 0;
    editing_.removing.remove(RuleCategory::copyFilesTo);
    platform_.log.clear();
    platform_.panels.confirm({"/Volumes/Backup"});
    EXPECT_TRUE(platform_.log.lines().empty());
    EXPECT_EQ(list().size(), 2U);
}

TEST_F(ChoosePathTest, TheChooserTakesOneFolderAndAlwaysStartsAtTheDesktop) {
    platform_.preferences.local.insert_or_assign("prePathOfSendFilesTo", "/remembered");
    editing_.pathChoosing.selectPath(RuleCategory::copyFilesTo, 0);
    OpenPanelRequest expected;
    expected.canChooseFiles = false;
    expected.canChooseDirectories = true;
    expected.canCreateDirectories = true;
    expected.startFolder = "/Users/anna/Desktop";
    expected.message = "Choose the folder that this rule is to lead to.";
    EXPECT_EQ(platform_.panels.requests.back(), expected);
}

} // namespace
} // namespace tarnwick::testing
