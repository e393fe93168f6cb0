#include "prefs/PreferenceKeys.h"
#include "tests/support/SettingsFixture.h"

namespace tarnwick::testing {
namespace {

class ToggleRulesTest : public SettingsFixture {
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
    controller_.onOffcheckedStateChangedOfCreateNewFile(2, false);
    const auto& after = localList(RuleCategory::createNewFile);
    EXPECT_EQ(storedFlag(RuleCategory::createNewFile, 2), PlistValue(0));
    for (std::size_t row = 0; row < before.size(); ++row) {
        EXPECT_EQ(row == 2 || after[row] == before[row], true) << row;
    }
    EXPECT_EQ(sharedList(RuleCategory::createNewFile).size(), 8U);
}

TEST_F(ToggleRulesTest, SwitchingOnStoresTheIntegerOne) {
    launch();
    controller_.onOffcheckedStateChangedOfCreateNewFile(12, true);
    EXPECT_EQ(storedFlag(RuleCategory::createNewFile, 12), PlistValue(1));
}

TEST_F(ToggleRulesTest, TheMainMenuSwitchWritesItsOwnField) {
    launch();
    controller_.onOffEnableMainMenuStateChangedOfCreateNewFile(1, true);
    EXPECT_EQ(storedFlag(RuleCategory::createNewFile, 1, "enableMainMenu"), PlistValue(1));
    EXPECT_EQ(storedFlag(RuleCategory::createNewFile, 1), PlistValue("1"));
}

TEST_F(ToggleRulesTest, ARowSwitchStoresSynchronisesReloadsAndPublishes) {
    launch();
    controller_.resetCopyFilesToRule();
    platform_.log.clear();
    controller_.onOffcheckedStateChangedOfCopyTo(1, false);
    EXPECT_EQ(platform_.log.lines(), rowSwitchOrder("copyFilesTo", "arrOfCopyFilesTo"));
}

TEST_F(ToggleRulesTest, ATargetWithoutFolderIsStoredOffHoweverItIsSwitched) {
    storeList(RuleCategory::copyFilesTo,
        {makeRecord({{"enable", 0}, {"realPath", "Undefined"}, {"displayName", ""}})});
    launch();
    controller_.onOffcheckedStateChangedOfCopyTo(0, true);
    EXPECT_EQ(storedFlag(RuleCategory::copyFilesTo, 0), PlistValue(0));
    EXPECT_EQ(platform_.log.lines(), rowSwitchOrder("copyFilesTo", "arrOfCopyFilesTo"));
}

TEST_F(ToggleRulesTest, AFixedActionIsLeftAsItIsAndTheListStillSavedAndPublished) {
    launch();
    const auto before = localList(RuleCategory::others);
    for (const long row : {15L, 16L, 17L}) {
        platform_.log.clear();
        controller_.onOffcheckedStateChangedOfOthers(row, false);
        EXPECT_EQ(localList(RuleCategory::others), before);
        EXPECT_EQ(platform_.log.lines()[0], "local set arrOfOthers");
        EXPECT_EQ(platform_.log.lines().back(), "shared synchronise");
    }
}

TEST_F(ToggleRulesTest, ACustomIconIsSwitchedByItsRow) {
    launch();
    controller_.onOffcheckedStateChangedOfCustomIcon(4, false);
    EXPECT_EQ(storedFlag(RuleCategory::customIcon, 4), PlistValue(0));
    EXPECT_EQ(sharedList(RuleCategory::customIcon).size(), 19U);
    EXPECT_EQ(local("enableAllOfCustomIcon"), PlistValue(false));
}

TEST_F(ToggleRulesTest, ARowThatTheListDoesNotHaveChangesNothing) {
    launch();
    for (const long row : {-1L, 15L, 1000L}) {
        controller_.onOffcheckedStateChangedOfCreateNewFile(row, false);
    }
    EXPECT_TRUE(platform_.log.lines().empty());
}

TEST_F(ToggleRulesTest, EnableAllOffStoresTheBooleanFalseEverywhereButInTheFixedActions) {
    launch();
    platform_.preferences.userSets("enableAllOfOthers", false);
    controller_.enableAllOfOthersClick();
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
    controller_.enableAllOfCreateNewFilesClick();
    for (std::size_t row = 0; row < 15; ++row) {
        EXPECT_EQ(storedFlag(RuleCategory::createNewFile, row), PlistValue(true)) << row;
    }
    EXPECT_EQ(sharedList(RuleCategory::createNewFile).size(), 15U);
    EXPECT_EQ(local("enableAllOfCreateNewFiles"), PlistValue(true));
}

TEST_F(ToggleRulesTest, EnableAllReloadsThenStoresWithoutSynchronisingThenPublishes) {
    launch();
    controller_.enableAllOfCustomIconClick();
    EXPECT_EQ(platform_.log.lines(),
        (std::vector<std::string>{"reload customIcon", "local set arrOfCustomIcon",
            "local set enableAllOfCustomIcon", "shared open H7Q2ZK5RX9.org.halvane.Tarnwick",
            "shared set arrOfCustomIcon", "shared synchronise"}));
}

TEST_F(ToggleRulesTest, EnableAllOnAnEmptyListPublishesAnEmptyList) {
    launch();
    while (controller_.numberOfRows(RuleCategory::customIcon) > 0) {
        window_.table(RuleCategory::customIcon).selected = 0;
        controller_.removeCustomIconRule();
    }
    platform_.preferences.userSets("enableAllOfCustomIcon", false);
    controller_.enableAllOfCustomIconClick();
    EXPECT_TRUE(sharedList(RuleCategory::customIcon).empty());
    EXPECT_EQ(local("enableAllOfCustomIcon"), PlistValue(true));
}

TEST_F(ToggleRulesTest, EnableAllLeavesAListWithoutSuchASwitchAlone) {
    const auto ports = platform_.ports();
    LocalPreferences preferences;
    preferences.open(ports.preferences);
    RuleLists lists;
    RulePublisher publisher(ports.preferences, preferences, lists);
    RulePages pages(lists, preferences, publisher);
    lists[RuleCategory::commonPath].append(makeRecord({{"enable", 1}, {"realPath", "/a"}}));
    platform_.log.clear();
    ToggleRules(preferences, pages).enableAll(RuleCategory::commonPath);
    EXPECT_TRUE(lists[RuleCategory::commonPath][0].isEnabled());
    EXPECT_TRUE(platform_.log.lines().empty());
}

class MirroredKeyTest : public ToggleRulesTest, public ::testing::WithParamInterface<std::string_view> {};

TEST_P(MirroredKeyTest, IsCopiedIntoTheSuiteAsABooleanAndSynchronised) {
    launch();
    for (const bool on : {false, true}) {
        platform_.log.clear();
        platform_.preferences.userSets(GetParam(), on);
        EXPECT_EQ(shared(GetParam()), PlistValue(on));
        EXPECT_EQ(platform_.log.lines(), (std::vector<std::string>{"local set " + std::string(GetParam()),
                                             "shared open H7Q2ZK5RX9.org.halvane.Tarnwick",
                                             "shared set " + std::string(GetParam()), "shared synchronise"}));
    }
}

INSTANTIATE_TEST_SUITE_P(Every, MirroredKeyTest, ::testing::ValuesIn(mirroredKeys));

TEST_F(ToggleRulesTest, AMirroredIntegerArrivesAsABoolean) {
    launch();
    platform_.preferences.userSets("enableMoveFilesTo", 0);
    EXPECT_EQ(shared("enableMoveFilesTo"), PlistValue(false));
}

TEST_F(ToggleRulesTest, TheTerminalSwitchesAreNotMirrored) {
    launch();
    for (const auto* key : {"newWindowOfOpenInTerminal", "newWindowOfOpenIniTerm2"}) {
        platform_.preferences.userSets(key, false);
        EXPECT_EQ(shared(key), PlistValue(true));
    }
}

} // namespace
} // namespace tarnwick::testing
