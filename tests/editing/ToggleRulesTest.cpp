#include "prefs/PreferenceKeys.h"
#include "tests/support/EditingFixture.h"

namespace tarnwick::testing {
namespace {

class ToggleRulesTest : public EditingFixture {
protected:
    [[nodiscard]] PlistValue storedFlag(
        RuleCategory category, std::size_t row, const std::string& key = "enable") const {
        return localList(category)[row].dictionary()->at(key);
    }
};

std::vector<std::string> rowSwitchOrder(const std::string& table, const std::string& listKey) {
    return {"local set " + listKey, "local synchronise", "reload " + table,
        "shared open H7Q2ZK5RX9.org.halvane.Tarnwick", "shared set " + listKey, "shared synchronise"};
}

TEST_F(ToggleRulesTest, SwitchingOffRowTwoStoresTheIntegerZeroThereAndNothingElse) {
    launch();
    const auto before = localList(RuleCategory::createNewFile);
    editing_.toggling.set(RuleCategory::createNewFile, 2, field::enable, false);
    const auto& after = localList(RuleCategory::createNewFile);
    EXPECT_EQ(storedFlag(RuleCategory::createNewFile, 2), PlistValue(0));
    for (std::size_t row = 0; row < before.size(); ++row) {
        EXPECT_EQ(row == 2 || after[row] == before[row], true) << row;
    }
    EXPECT_EQ(sharedList(RuleCategory::createNewFile).size(), 8U);
}

TEST_F(ToggleRulesTest, SwitchingOnStoresTheIntegerOne) {
    launch();
    editing_.toggling.set(RuleCategory::createNewFile, 12, field::enable, true);
    EXPECT_EQ(storedFlag(RuleCategory::createNewFile, 12), PlistValue(1));
}

TEST_F(ToggleRulesTest, TheMainMenuSwitchWritesItsOwnField) {
    launch();
    editing_.toggling.set(RuleCategory::createNewFile, 1, field::enableMainMenu, true);
    EXPECT_EQ(storedFlag(RuleCategory::createNewFile, 1, "enableMainMenu"), PlistValue(1));
    EXPECT_EQ(storedFlag(RuleCategory::createNewFile, 1), PlistValue("1"));
}

TEST_F(ToggleRulesTest, ARowSwitchStoresSynchronisesReloadsAndPublishes) {
    launch();
    editing_.resetting.reset(RuleCategory::copyFilesTo);
    platform_.log.clear();
    editing_.toggling.set(RuleCategory::copyFilesTo, 1, field::enable, false);
    EXPECT_EQ(platform_.log.lines(), rowSwitchOrder("copyFilesTo", "arrOfCopyFilesTo"));
}

TEST_F(ToggleRulesTest, ATargetWithoutFolderIsStoredOffHoweverItIsSwitched) {
    storeList(RuleCategory::copyFilesTo,
        {makeRecord({{"enable", 0}, {"realPath", "Undefined"}, {"displayName", ""}})});
    launch();
    editing_.toggling.set(RuleCategory::copyFilesTo, 0, field::enable, true);
    EXPECT_EQ(storedFlag(RuleCategory::copyFilesTo, 0), PlistValue(0));
    EXPECT_EQ(platform_.log.lines(), rowSwitchOrder("copyFilesTo", "arrOfCopyFilesTo"));
}

TEST_F(ToggleRulesTest, AFixedActionIsLeftAsItIsAndTheListStillSavedAndPublished) {
    launch();
    const auto before = localList(RuleCategory::others);
    for (const long row : {15L, 16L, 17L}) {
        platform_.log.clear();
        editing_.toggling.set(RuleCategory::others, row, field::enable, false);
        EXPECT_EQ(localList(RuleCategory::others), before);
        EXPECT_EQ(platform_.log.lines()[0], "local set arrOfOthers");
        EXPECT_EQ(platform_.log.lines().back(), "shared synchronise");
    }
}

TEST_F(ToggleRulesTest, ACustomIconIsSwitchedByItsRow) {
    launch();
    editing_.toggling.set(RuleCategory::customIcon, 4, field::enable, false);
    EXPECT_EQ(storedFlag(RuleCategory::customIcon, 4), PlistValue(0));
    EXPECT_EQ(sharedList(RuleCategory::customIcon).size(), 19U);
    EXPECT_EQ(local("enableAllOfCustomIcon"), PlistValue(false));
}

TEST_F(ToggleRulesTest, ARowThatTheListDoesNotHaveChangesNothing) {
    launch();
    for (const long row : {-1L, 15L, 1000L}) {
        editing_.toggling.set(RuleCategory::createNewFile, row, field::enable, false);
    }
    EXPECT_TRUE(platform_.log.lines().empty());
}

TEST_F(ToggleRulesTest, EnableAllOffStoresTheBooleanFalseEverywhereButInTheFixedActions) {
    launch();
    platform_.preferences.userSets("enableAllOfOthers", false);
    editing_.toggling.enableAll(RuleCategory::others);
    for (std::size_t row = 0; row < 15; ++row) {
        EXPECT_EQ(storedFlag(RuleCategory::others, row), PlistValue(false)) << row;
    }
    for (const std::size_t row : {15U, 16U, 17U}) {
        EXPECT_EQ(storedFlag(RuleCategory::others, row), PlistValue(1)) << row;
    }
    EXPECT_EQ(sharedList(RuleCategory::others).size(), 3U);
}

TEST_F(ToggleRulesTest, EnableAllOnStoresTheBooleanTrueInEveryRecord) {
    launch();
    platform_.preferences.userSets("enableAllOfCreateNewFiles", true);
    editing_.toggling.enableAll(RuleCategory::createNewFile);
    for (std::size_t row = 0; row < 15; ++row) {
        EXPECT_EQ(storedFlag(RuleCategory::createNewFile, row), PlistValue(true)) << row;
    }
    EXPECT_EQ(sharedList(RuleCategory::createNewFile).size(), 15U);
    EXPECT_EQ(local("enableAllOfCreateNewFiles"), PlistValue(true));
}

TEST_F(ToggleRulesTest, EnableAllReloadsThenStoresWithoutSynchronisingThenPublishes) {
    launch();
    editing_.toggling.enableAll(RuleCategory::customIcon);
    EXPECT_EQ(platform_.log.lines(),
        (std::vector<std::string>{"reload customIcon", "local set arrOfCustomIcon",
            "local set enableAllOfCustomIcon", "shared open H7Q2ZK5RX9.org.halvane.Tarnwick",
            "shared set arrOfCustomIcon", "shared synchronise"}));
}

TEST_F(ToggleRulesTest, EnableAllOnAnEmptyListPublishesAnEmptyList) {
    launch();
    while (rows(RuleCategory::customIcon) > 0) {
        tables_.table(RuleCategory::customIcon).selected = 0;
        editing_.removing.remove(RuleCategory::customIcon);
    }
    platform_.preferences.userSets("enableAllOfCustomIcon", false);
    editing_.toggling.enableAll(RuleCategory::customIcon);
    EXPECT_TRUE(sharedList(RuleCategory::customIcon).empty());
    EXPECT_EQ(local("enableAllOfCustomIcon"), PlistValue(true));
}

TEST_F(ToggleRulesTest, EnableAllLeavesAListWithoutSuchASwitchAlone) {
    storeList(RuleCategory::commonPath, {makeRecord({{"enable", 1}, {"realPath", "/a"}})});
    launch();
    editing_.toggling.enableAll(RuleCategory::commonPath);
    EXPECT_TRUE(list(RuleCategory::commonPath)[0].isEnabled());
    EXPECT_TRUE(platform_.log.lines().empty());
}

} // namespace
} // namespace tarnwick::testing
