#include "tests/support/Categories.h"
#include "tests/support/SettingsFixture.h"
#include "ui/CountText.h"
#include "ui/WindowLayout.h"

namespace tarnwick::testing {
namespace {

RuleRecord rule(PlistValue enable, std::string_view action = "Cut") {
    return makeRecord({{"enable", std::move(enable)}, {"Action", std::string(action)}});
}

EnabledRules enabled(std::vector<RuleRecord> records) {
    return enabledRulesOf(RuleList(others, std::move(records)));
}

TEST(EnabledRules, SomeOnAndSomeOffAreMixedWhateverIsStored) {
    const auto rules = enabled({rule(1), rule(0), rule("1")});
    EXPECT_EQ(rules, (EnabledRules{2, 3}));
    EXPECT_EQ(rules.state(true), EnableAllState::mixed);
    EXPECT_EQ(rules.state(false), EnableAllState::mixed);
}

TEST(EnabledRules, AreOtherwiseShownByTheStoredFlag) {
    for (const auto& rules : {enabled({rule(1), rule(1)}), enabled({rule(0), rule(0)}), enabled({})}) {
        EXPECT_EQ(rules.state(true), EnableAllState::on);
        EXPECT_EQ(rules.state(false), EnableAllState::off);
    }
}

TEST(EnabledRules, CountTheFixedActionsAsOn) {
    EXPECT_EQ(enabled({rule(0, "Change to QR Code"), rule(0, "Translate by Google"),
                  rule(0, "Translate by Baidu"), rule(0, "Screenshots by Snapfin")}),
        (EnabledRules{3, 4}));
}

class EnabledRulesTest : public SettingsFixture {
protected:
    [[nodiscard]] std::string text(std::vector<RuleRecord> records) const {
        return enabledText(platform_.bundle, RuleList(others, std::move(records)));
    }
};

TEST_F(EnabledRulesTest, TheWordsAgreeWithTheNumber) {
    platform_.bundle.texts = {{"%1$@ of %2$@ items on: none", "%1$@ nul sur %2$@"},
        {"%1$@ of %2$@ items on: one", "%1$@ actif sur %2$@"},
        {"%1$@ of %2$@ items on: several", "sur %2$@, %1$@ actifs"}};
    EXPECT_EQ(text({rule(0), rule(0)}), "0 nul sur 2");
    EXPECT_EQ(text({rule(0), rule(1)}), "1 actif sur 2");
    EXPECT_EQ(text({rule(1), rule(1)}), "sur 2, 2 actifs");
    EXPECT_EQ(text({}), "");
}

TEST_F(EnabledRulesTest, TheNumberFollowsTheRows) {
    launch();
    const auto category = RuleCategory::createNewFile;
    EXPECT_EQ(controller_.rows().enabled(category), (EnabledRules{9, 15}));
    controller_.set(category, 2, field::enable, false);
    EXPECT_EQ(controller_.rows().enabled(category), (EnabledRules{8, 15}));
    EXPECT_EQ(controller_.rows().enabledText(category), "8 of 15 templates on: several");
    controller_.reset(category);
    EXPECT_EQ(controller_.rows().enabledText(category), "9 of 15 templates on: several");
    EXPECT_EQ(controller_.rows().enabledText(RuleCategory::copyFilesTo), "");
}

TEST_F(EnabledRulesTest, EveryListWithSuchASwitchHasWordsForIt) {
    for (const auto category : allRuleCategories) {
        const auto hasSwitch = !factsOf(category).enableAllKey.empty();
        for (const std::size_t number : {0U, 1U, 7U}) {
            EXPECT_EQ(!layoutOf(pageOf(category)).enabledCount.formFor(number).empty(), hasSwitch);
        }
    }
}

TEST(CountText, FillsPlaceholdersInTurnAndByNumber) {
    EXPECT_EQ(filled("%@ of %@", {"9", "15"}), "9 of 15");
    EXPECT_EQ(filled("%2$@: %1$@, %2$@", {"9", "15"}), "15: 9, 15");
}

TEST(CountText, LeavesWhatItHasNoValueForAndWhatStandsInAValue) {
    EXPECT_EQ(filled("%@ %@ %3$@ %d 100%", {"%@"}), "%@ %@ %3$@ %d 100%");
    EXPECT_EQ(filled("", {"9"}), "");
}

} // namespace
} // namespace tarnwick::testing
