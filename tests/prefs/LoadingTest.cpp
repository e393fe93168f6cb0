#include "prefs/FactoryTables.h"
#include "prefs/PreferenceKeys.h"
#include "tests/support/PrefsFixture.h"

#include <algorithm>

namespace tarnwick::testing {
namespace {

class LoadingTest : public PrefsFixture {
protected:
    [[nodiscard]] std::vector<std::string> loadedOthers() {
        std::vector<std::string> names;
        for (const auto& record : list(RuleCategory::others)) {
            names.emplace_back(record.text(field::displayName));
        }
        return names;
    }
    void storeOthers(const std::vector<std::string>& actions) {
        std::vector<RuleRecord> records;
        for (const auto& action : actions) {
            records.push_back(makeRecord({{"enable", 1}, {"displayName", action}, {"Action", action}}));
        }
        storeList(RuleCategory::others, records);
    }
};

TEST_F(LoadingTest, AFreshInstallationSetsEverySeededSwitchTrueInBothStores) {
    load();
    for (const auto& group : seedGroups) {
        for (const auto& key : group.keys) {
            EXPECT_EQ(local(key), PlistValue(true)) << key;
            EXPECT_EQ(shared(key), PlistValue(true)) << key;
        }
    }
    EXPECT_EQ(platform_.preferences.local.count("disableAutoNameOfCreateNewFile"), 0U);
}

TEST_F(LoadingTest, AFreshInstallationPublishesTheElevenFeaturesWithTheDoubledOne) {
    load();
    const PlistArray expected{"enableCopyPathToPaste", "enableDeleteSelectedFiles",
        "enableOpenPathInTerminal", "enableOpenPathInTerminal", "enableOpenPathIniTerm2", "enableImagetoIcon",
        "enableHiddenAllFilesInPath", "enableUnhiddenAllFilesInPath", "enableUnhiddenSelectedFiles",
        "enableHiddenSelectedFiles", "enableScreenshotsBySnapfin"};
    EXPECT_EQ(shared("arrOfEnableOther"), PlistValue(expected));
    for (const auto& name : expected) {
        EXPECT_EQ(local(*name.string()), PlistValue(true));
        EXPECT_EQ(platform_.preferences.shared.count(*name.string()), 0U);
    }
}

TEST_F(LoadingTest, AFreshInstallationHasEmptyTargetsAndPathsAndFactoryListsOtherwise) {
    load();
    EXPECT_EQ(list(RuleCategory::createNewFile).size(), 15U);
    EXPECT_EQ(list(RuleCategory::copyFilesTo).size(), 0U);
    EXPECT_EQ(list(RuleCategory::commonPath).size(), 0U);
    EXPECT_EQ(list(RuleCategory::customIcon).size(), 20U);
    EXPECT_EQ(list(RuleCategory::others).size(), 18U);
    EXPECT_EQ(platform_.preferences.local.count("arrOfCopyFilesTo"), 0U);
}

class SeedGroupTest : public LoadingTest, public ::testing::WithParamInterface<std::size_t> {};

TEST_P(SeedGroupTest, IsBlockedByItsTriggerAloneEvenWhenThatIsFalse) {
    const auto& group = seedGroups[GetParam()];
    platform_.preferences.local.insert_or_assign(std::string(group.trigger()), false);
    load();
    EXPECT_EQ(local(group.trigger()), PlistValue(false));
    for (const auto& key : group.keys) {
        EXPECT_EQ(platform_.preferences.shared.count(key), 0U) << key;
    }
}

TEST_P(SeedGroupTest, WritesEachKeyFirstToTheSuiteAndThenLocally) {
    load();
    const auto& lines = platform_.log.lines();
    for (const auto& key : seedGroups[GetParam()].keys) {
        const auto written = std::find(lines.begin(), lines.end(), "shared set " + std::string(key));
        ASSERT_NE(written, lines.end());
        EXPECT_EQ(*(written + 1), "local set " + std::string(key));
    }
}

INSTANTIATE_TEST_SUITE_P(Every, SeedGroupTest, ::testing::Range(std::size_t{0}, seedGroups.size()),
    [](const auto& info) { return std::string(seedGroups[info.param].trigger()); });

TEST_F(LoadingTest, ALaterKeyOfAGroupIsNotLookedAt) {
    platform_.preferences.local.insert_or_assign("enableMoveFilesTo", false);
    load();
    EXPECT_EQ(local("enableMoveFilesTo"), PlistValue(true));
}

TEST_F(LoadingTest, TheSuiteAndTheLocalStoreAreOpenedFirstAndSeedingSynchronisesNeither) {
    load();
    const auto& lines = platform_.log.lines();
    EXPECT_EQ(lines[0], "shared open H7Q2ZK5RX9.org.halvane.Tarnwick");
    EXPECT_EQ(lines[1], "local open");
    EXPECT_EQ(lines[2], "shared set soundTipsOfNewFile");
    const auto firstSynchronise = std::find(lines.begin(), lines.end(), "shared synchronise");
    EXPECT_EQ(*(firstSynchronise - 1), "shared set arrOfEnableOther");
}

TEST_F(LoadingTest, WithoutTheTargetListTheFeatureArrayIsBuiltAnew) {
    load();
    platform_.preferences.shared.insert_or_assign("arrOfEnableOther", PlistArray{"old"});
    platform_.preferences.local.insert_or_assign("enableCopyPathToPaste", false);
    load();
    EXPECT_EQ(shared("arrOfEnableOther").array()->size(), 11U);
    EXPECT_EQ(local("enableCopyPathToPaste"), PlistValue(true));
}

TEST_F(LoadingTest, AnOlderInstallationGetsTheImageToIconFeatureAppended) {
    storeList(RuleCategory::copyFilesTo, {});
    platform_.preferences.shared.insert_or_assign("arrOfEnableOther", PlistArray{"enableCopyPathToPaste"});
    load();
    EXPECT_EQ(
        shared("arrOfEnableOther"), PlistValue(PlistArray{"enableCopyPathToPaste", "enableImagetoIcon"}));
    EXPECT_EQ(local("enableImagetoIcon"), PlistValue(true));
}

TEST_F(LoadingTest, AMissingFeatureArrayBecomesTheOneEntryArray) {
    storeList(RuleCategory::copyFilesTo, {});
    load();
    EXPECT_EQ(shared("arrOfEnableOther"), PlistValue(PlistArray{"enableImagetoIcon"}));
}

TEST_F(LoadingTest, AnEmptyTemplateListWithItsFolderStaysEmpty) {
    storeList(RuleCategory::createNewFile, {});
    platform_.files.folders.insert("/container/Templates/CreateNewFile");
    load();
    EXPECT_EQ(list(RuleCategory::createNewFile).size(), 0U);
}

TEST_F(LoadingTest, EmptyIconAndOthersListsAreRefilled) {
    storeList(RuleCategory::customIcon, {});
    storeList(RuleCategory::others, {});
    load();
    EXPECT_EQ(list(RuleCategory::customIcon).size(), 20U);
    EXPECT_EQ(list(RuleCategory::others).size(), 18U);
}

TEST_F(LoadingTest, AnOthersListWithoutEditorsGetsThemAtTheirPlacesInMemoryAlone) {
    storeOthers({"a", "b", "c", "d", "e", "f", "g"});
    load();
    EXPECT_EQ(loadedOthers(), (std::vector<std::string>{"a", "b", "c", "d", "e", "f", "Open in VSCode",
                                  "Open in Sublime Text", "Open in Emacs", "g"}));
    EXPECT_EQ(localList(RuleCategory::others).size(), 7U);
    preferences_.publisher.publish(RuleCategory::others);
    EXPECT_EQ(sharedList(RuleCategory::others).size(), 10U);
    EXPECT_EQ(sharedList(RuleCategory::others)[6],
        PlistValue(PlistDictionary{{"enable", 1}, {"icon", tiffOf("tiff of VSCode")},
            {"displayName", "Open in VSCode"}, {"nameModified", "0"}, {"noteModified", "0"},
            {"Action", "Open in VSCode"}, {"Note", ""}}));
}

TEST_F(LoadingTest, OnlyTheMissingEditorsAreInserted) {
    storeOthers({"Open in VSCode", "b", "c", "d", "e", "f", "g", "h"});
    load();
    EXPECT_EQ(loadedOthers(), (std::vector<std::string>{"Open in VSCode", "b", "c", "d", "e", "f", "g",
                                  "Open in Sublime Text", "Open in Emacs", "h"}));
}

TEST_F(LoadingTest, AListWithAllEditorsIsLeftUnchanged) {
    storeOthers({"Open in Emacs", "Open in Sublime Text", "Open in VSCode"});
    load();
    EXPECT_EQ(loadedOthers().size(), 3U);
}

TEST_F(LoadingTest, AShortListGetsTheEditorsAtItsEnd) {
    storeOthers({"a", "b"});
    load();
    EXPECT_EQ(loadedOthers(),
        (std::vector<std::string>{"a", "b", "Open in VSCode", "Open in Sublime Text", "Open in Emacs"}));
}

TEST_F(LoadingTest, AnEditorWhoseImageIsMissingIsLeftOutWithALogLine) {
    storeOthers({"a"});
    platform_.images.missingNames.insert("Emacs");
    load();
    EXPECT_EQ(loadedOthers(), (std::vector<std::string>{"a", "Open in VSCode", "Open in Sublime Text"}));
    EXPECT_EQ(platform_.systemLog.lines.size(), 1U);
}

TEST_F(LoadingTest, ASecondLoadWritesNothingButTheSameLists) {
    load();
    const auto localBefore = platform_.preferences.local;
    const auto sharedBefore = platform_.preferences.shared;
    load();
    EXPECT_EQ(platform_.preferences.local, localBefore);
    EXPECT_EQ(platform_.preferences.shared, sharedBefore);
}

} // namespace
} // namespace tarnwick::testing
