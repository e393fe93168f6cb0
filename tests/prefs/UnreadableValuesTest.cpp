#include "tests/support/PrefsFixture.h"

#include <algorithm>
#include <limits>

namespace tarnwick::testing {
namespace {

class UnreadableValuesTest : public PrefsFixture {
protected:
    void store(const std::string& key, PlistValue value) {
        platform_.preferences.local.insert_or_assign(key, std::move(value));
    }
    [[nodiscard]] bool has(const std::string& key) const {
        return platform_.preferences.local.count(key) != 0;
    }
};

class UnreadableListTest : public UnreadableValuesTest, public ::testing::WithParamInterface<RuleCategory> {};

TEST_P(UnreadableListTest, ThatIsNoArrayReadsAsMissingAndIsKeptBeforeAnythingOverwritesIt) {
    const std::string key(factsOf(GetParam()).listKey);
    store(key, "damaged");
    load();
    EXPECT_EQ(local(key + ".unreadable"), PlistValue("damaged"));
    const auto& lines = platform_.log.lines();
    const auto kept = std::find(lines.begin(), lines.end(), "local set " + key + ".unreadable");
    EXPECT_EQ(std::find(lines.begin(), kept, "local set " + key), kept);
    ASSERT_EQ(platform_.systemLog.lines.size(), 1U);
    EXPECT_EQ(platform_.systemLog.lines[0].rfind(key + ":", 0), 0U);
}

TEST_P(UnreadableListTest, WithElementsThatAreNoDictionariesKeepsTheOthers) {
    const std::string key(factsOf(GetParam()).listKey);
    platform_.files.folders.insert("/container/Templates/CreateNewFile");
    const PlistArray stored{"text", PlistDictionary{{"enable", 1}, {"displayName", "good"}}, 7};
    store(key, stored);
    load();
    EXPECT_EQ(list(GetParam()).size(), GetParam() == RuleCategory::others ? 4U : 1U);
    EXPECT_EQ(local(key + ".unreadable"), PlistValue(stored));
}

INSTANTIATE_TEST_SUITE_P(Every, UnreadableListTest, ::testing::ValuesIn(allRuleCategories));

TEST_F(UnreadableValuesTest, ATargetListThatIsNoArrayIsNoFirstRun) {
    load();
    const PlistArray features{"enableImagetoIcon"};
    platform_.preferences.shared.insert_or_assign("arrOfEnableOther", features);
    store("arrOfCopyFilesTo", 7);
    load();
    EXPECT_EQ(shared("arrOfEnableOther"), PlistValue(features));
}

TEST_F(UnreadableValuesTest, FieldsOfTheWrongTypeAreKeptAsideAndReadAsMissing) {
    const PlistArray stored{PlistDictionary{
        {"enable", 1}, {"displayName", 42}, {"icon", "no image"}, {"modified", PlistArray{}}}};
    store("arrOfCustomIcon", stored);
    load();
    EXPECT_EQ(local("arrOfCustomIcon.unreadable"), PlistValue(stored));
    const auto& record = list(RuleCategory::customIcon)[0];
    EXPECT_EQ(record.text(field::displayName), "");
    EXPECT_TRUE(record.data(field::icon).empty());
}

TEST_F(UnreadableValuesTest, AnOriginalIsNeverReplacedByALaterOne) {
    store("arrOfCommonPath", "first");
    load();
    store("arrOfCommonPath", "second");
    load();
    EXPECT_EQ(local("arrOfCommonPath.unreadable"), PlistValue("first"));
    EXPECT_EQ(local("arrOfCommonPath.unreadable.2"), PlistValue("second"));
}

TEST_F(UnreadableValuesTest, TheSameOriginalIsKeptOnce) {
    store("arrOfCommonPath", "damaged");
    load();
    load();
    EXPECT_FALSE(has("arrOfCommonPath.unreadable.2"));
}

TEST_F(UnreadableValuesTest, AnOriginalWithARealThatIsNoNumberIsKeptOnce) {
    store("arrOfCommonPath", PlistArray{std::numeric_limits<double>::quiet_NaN()});
    load();
    load();
    EXPECT_FALSE(has("arrOfCommonPath.unreadable.2"));
}

TEST_F(UnreadableValuesTest, ABadRecordAmongChangedOnesIsNotKeptAgain) {
    const PlistValue bad(PlistDictionary{{"displayName", 1}});
    store("arrOfCommonPath", PlistArray{bad});
    load();
    store("arrOfCommonPath", PlistArray{bad, PlistDictionary{{"displayName", "good"}}});
    load();
    EXPECT_FALSE(has("arrOfCommonPath.unreadable.2"));
}

TEST_F(UnreadableValuesTest, SoundListsAreLeftAloneWithoutALogLine) {
    load();
    load();
    for (const auto& [key, value] : platform_.preferences.local) {
        EXPECT_EQ(key.find(".unreadable"), std::string::npos) << key;
    }
    EXPECT_TRUE(platform_.systemLog.lines.empty());
}

TEST_F(UnreadableValuesTest, UnknownFieldsOfAnyTypeAreSound) {
    store("arrOfCommonPath", PlistArray{PlistDictionary{{"enable", "1"}, {"color", PlistArray{1, 2}}}});
    load();
    EXPECT_FALSE(has("arrOfCommonPath.unreadable"));
}

TEST_F(UnreadableValuesTest, AFeatureArrayThatIsNoArrayBecomesTheOneEntryArray) {
    storeList(RuleCategory::copyFilesTo, {});
    platform_.preferences.shared.insert_or_assign("arrOfEnableOther", "damaged");
    load();
    EXPECT_EQ(shared("arrOfEnableOther"), PlistValue(PlistArray{"enableImagetoIcon"}));
    EXPECT_EQ(local("arrOfEnableOther.unreadable"), PlistValue("damaged"));
    EXPECT_EQ(platform_.systemLog.lines,
        std::vector<std::string>{"arrOfEnableOther: what cannot be read is left out; the original is kept "
                                 "under arrOfEnableOther.unreadable"});
}

TEST_F(UnreadableValuesTest, AFeatureArrayThatIsNoArrayIsKeptAlsoWhenAFirstRunBuildsItAnew) {
    platform_.preferences.shared.insert_or_assign("arrOfEnableOther", PlistDictionary{{"a", 1}});
    load();
    EXPECT_EQ(shared("arrOfEnableOther").array()->size(), 11U);
    EXPECT_EQ(local("arrOfEnableOther.unreadable"), PlistValue(PlistDictionary{{"a", 1}}));
}

TEST_F(UnreadableValuesTest, WhatAFeatureArrayHoldsStaysInIt) {
    storeList(RuleCategory::copyFilesTo, {});
    platform_.preferences.shared.insert_or_assign("arrOfEnableOther", PlistArray{1, "mine"});
    load();
    EXPECT_EQ(shared("arrOfEnableOther"), PlistValue(PlistArray{1, "mine", "enableImagetoIcon"}));
    EXPECT_FALSE(has("arrOfEnableOther.unreadable"));
}

} // namespace
} // namespace tarnwick::testing
