#include "prefs/LocalPreferences.h"
#include "prefs/RulePublisher.h"
#include "tests/support/PrefsFixture.h"

namespace tarnwick::testing {
namespace {

class PublishingTest : public ::testing::Test {
protected:
    PublishingTest() { local_.open(platform_.preferences); }
    void fill(RuleCategory category, const std::vector<PlistValue>& flags) {
        std::vector<RuleRecord> records;
        for (std::size_t index = 0; index < flags.size(); ++index) {
            records.push_back(makeRecord({{"displayName", std::to_string(index)}, {"enable", flags[index]}}));
        }
        lists_[category].assign(records);
    }
    [[nodiscard]] std::string published(const std::string& key) {
        std::string names;
        for (const auto& element : *platform_.preferences.shared.at(key).array()) {
            names += *element.dictionary()->at("displayName").string();
        }
        return names;
    }

    InMemoryPlatform platform_;
    LocalPreferences local_;
    RuleLists lists_;
    RulePublisher publisher_{platform_.preferences, local_, lists_};
};

const std::string openSuite = "shared open H7Q2ZK5RX9.org.halvane.Tarnwick";

TEST_F(PublishingTest, OnlyEnabledRecordsArePublishedInOrderAndTheFlagEndsFalse) {
    fill(RuleCategory::createNewFile, {"1", "0", 1, 0, true, false, "Y"});
    publisher_.publish(RuleCategory::createNewFile);
    EXPECT_EQ(published("arrOfCreateNewFile"), "0246");
    EXPECT_EQ(platform_.preferences.local.at("enableAllOfCreateNewFiles"), PlistValue(false));
}

TEST_F(PublishingTest, ARecordWithoutTheFieldCountsAsDisabled) {
    lists_[RuleCategory::others].assign({makeRecord({{"displayName", "a"}})});
    publisher_.publish(RuleCategory::others);
    EXPECT_EQ(published("arrOfOthers"), "");
}

TEST_F(PublishingTest, AllEnabledEndsTheFlagTrueWithOneWrite) {
    fill(RuleCategory::customIcon, {1, 1});
    platform_.log.clear();
    publisher_.publish(RuleCategory::customIcon);
    EXPECT_EQ(platform_.log.lines(), (std::vector<std::string>{"local set enableAllOfCustomIcon", openSuite,
                                         "shared set arrOfCustomIcon", "shared synchronise"}));
    EXPECT_EQ(platform_.preferences.local.at("enableAllOfCustomIcon"), PlistValue(true));
}

TEST_F(PublishingTest, TheFlagIsWrittenFalseOnlyOnceHoweverManyAreDisabled) {
    fill(RuleCategory::others, {0, 1, 0, 0});
    platform_.log.clear();
    publisher_.publish(RuleCategory::others);
    EXPECT_EQ(platform_.log.linesWith("local set ").size(), 2U);
}

TEST_F(PublishingTest, AnEmptyListPublishesAnEmptyArrayAndLeavesTheFlagTrue) {
    publisher_.publish(RuleCategory::others);
    EXPECT_EQ(platform_.preferences.shared.at("arrOfOthers"), PlistValue(PlistArray{}));
    EXPECT_EQ(platform_.preferences.local.at("enableAllOfOthers"), PlistValue(true));
}

TEST_F(PublishingTest, TargetsAndPathsTouchNoLocalKey) {
    fill(RuleCategory::copyFilesTo, {1, 0});
    fill(RuleCategory::commonPath, {1, 0});
    publisher_.publish(RuleCategory::copyFilesTo);
    publisher_.publish(RuleCategory::commonPath);
    EXPECT_TRUE(platform_.preferences.local.empty());
    EXPECT_EQ(published("arrOfCopyFilesTo"), "0");
    EXPECT_EQ(published("arrOfCommonPath"), "0");
}

TEST_F(PublishingTest, PublishedRecordsKeepAllTheirFields) {
    const auto record = makeRecord({{"enable", "1"}, {"icon", PlistData({1, 2})}, {"unknown", 5}});
    lists_[RuleCategory::customIcon].assign({record});
    publisher_.publish(RuleCategory::customIcon);
    EXPECT_EQ((*platform_.preferences.shared.at("arrOfCustomIcon").array())[0], record.toPlist());
}

TEST_F(PublishingTest, SavingOpensAHandleStoresAndSynchronises) {
    platform_.log.clear();
    publisher_.saveData(7, "key");
    EXPECT_EQ(
        platform_.log.lines(), (std::vector<std::string>{openSuite, "shared set key", "shared synchronise"}));
}

TEST(LocalPreferencesTest, HoldsNothingAndDropsWritesUntilItIsOpened) {
    LocalPreferences local;
    local.set("key", 1);
    local.synchronize();
    EXPECT_FALSE(local.contains("key"));
    EXPECT_FALSE(local.flag("key"));
    EXPECT_EQ(local.text("key"), std::nullopt);
    EXPECT_FALSE(local.containsArray("key"));
}

} // namespace
} // namespace tarnwick::testing
