#include "tests/support/SettingsFixture.h"

namespace tarnwick::testing {
namespace {

class ChoosePathTest : public SettingsFixture {
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
    controller_.selectPath(2);
    platform_.openPanel.choose({"/Volumes/Backup"});
    const PlistValue expected(
        PlistDictionary{{"enable", 1}, {"realPath", "/Volumes/Backup"}, {"displayName", ""}});
    EXPECT_EQ(list()[2], expected);
    EXPECT_EQ(sharedList(RuleCategory::copyFilesTo)[1], expected);
}

TEST_F(ChoosePathTest, StoresSynchronisesReloadsAndPublishesAndRemembersNoFolder) {
    controller_.selectPath(0);
    platform_.log.clear();
    platform_.openPanel.choose({"/Volumes/Backup"});
    EXPECT_EQ(
        platform_.log.lines(), (std::vector<std::string>{"local set arrOfCopyFilesTo", "local synchronise",
                                   "reload copyFilesTo", "shared open H7Q2ZK5RX9.org.halvane.Tarnwick",
                                   "shared set arrOfCopyFilesTo", "shared synchronise"}));
}

TEST_F(ChoosePathTest, ATargetWithoutFolderKeepsItsFlagAndCanBeSwitchedOnAfterwards) {
    controller_.selectPath(1);
    platform_.openPanel.choose({"/Volumes/Backup"});
    EXPECT_EQ(list()[1].dictionary()->at("enable"), PlistValue(0));
    controller_.onOffcheckedStateChangedOfCopyTo(1, true);
    EXPECT_EQ(list()[1].dictionary()->at("enable"), PlistValue(1));
}

TEST_F(ChoosePathTest, CancellingChangesAndPublishesNothing) {
    controller_.selectPath(0);
    platform_.log.clear();
    platform_.openPanel.cancel();
    EXPECT_TRUE(platform_.log.lines().empty());
}

TEST_F(ChoosePathTest, TheRowIsTheOneOfTheClickEvenWhenTheListChangesMeanwhile) {
    controller_.selectPath(1);
    window_.table(RuleCategory::copyFilesTo).selected = 0;
    controller_.removeCopyFilesToRule();
    platform_.openPanel.choose({"/Volumes/Backup"});
    EXPECT_EQ(texts(list(), "realPath"), (std::vector<std::string>{"Undefined", "/Volumes/Backup"}));
}

TEST_F(ChoosePathTest, ARowThatIsGoneWhenTheChooserClosesChangesNothing) {
    controller_.selectPath(2);
    window_.table(RuleCategory::copyFilesTo).selected = 0;
    controller_.removeCopyFilesToRule();
    platform_.log.clear();
    platform_.openPanel.choose({"/Volumes/Backup"});
    EXPECT_TRUE(platform_.log.lines().empty());
    EXPECT_EQ(list().size(), 2U);
}

TEST_F(ChoosePathTest, TheChooserTakesOneFolderAndAlwaysStartsAtTheDesktop) {
    platform_.preferences.local.insert_or_assign("prePathOfSendFilesTo", "/remembered");
    controller_.selectPath(0);
    OpenPanelRequest expected;
    expected.canChooseFiles = false;
    expected.canChooseDirectories = true;
    expected.canCreateDirectories = true;
    expected.startFolder = "/Users/anna/Desktop";
    EXPECT_EQ(platform_.openPanel.requests.back(), expected);
}

} // namespace
} // namespace tarnwick::testing
