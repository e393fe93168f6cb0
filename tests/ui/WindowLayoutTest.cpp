#include "ui/WindowLayout.h"
#include "prefs/PreferenceKeys.h"
#include "tests/support/SettingsFixture.h"
#include "ui/RuleColumns.h"

#include <algorithm>
#include <set>

namespace tarnwick::testing {
namespace {

class WindowLayoutTest : public SettingsFixture {};

TEST_F(WindowLayoutTest, EachListHasItsPageWithItsNameAndSwitchAmongTheColumns) {
    for (const auto category : allRuleCategories) {
        EXPECT_EQ(layoutOf(pageOf(category)).category, category);
        EXPECT_NE(columnOf(category, ColumnRole::name), nullptr);
        EXPECT_EQ(
            columnOf(category, ColumnRole::enableSwitch) == nullptr, category == RuleCategory::commonPath);
    }
}

TEST_F(WindowLayoutTest, EveryColumnOfThePagesHasACell) {
    storeList(RuleCategory::copyFilesTo, {makeRecord({{"realPath", "/a"}})});
    storeList(RuleCategory::commonPath, {makeRecord({{"realPath", "/a"}})});
    launch();
    for (const auto category : allRuleCategories) {
        for (const auto& column : columnsOf(category)) {
            EXPECT_NE(controller_.rows().cell(category, column.identifier, 0), CellView{})
                << column.identifier;
        }
    }
}

TEST_F(WindowLayoutTest, EveryOptionSwitchStandsOnExactlyOnePage) {
    std::set<std::string_view> keys;
    for (const auto shown : allPages) {
        const auto& page = layoutOf(shown);
        for (const auto& facts : page.switches) {
            EXPECT_TRUE(keys.insert(facts.key).second) << facts.key;
        }
    }
    std::set<std::string_view> expected(mirroredKeys.begin(), mirroredKeys.end());
    expected.insert({"newWindowOfOpenInTerminal", "newWindowOfOpenIniTerm2"});
    EXPECT_EQ(keys, expected);
}

TEST_F(WindowLayoutTest, EveryListSaysWhatIsMissingWhileItIsEmptyAndNamesItsAddButton) {
    std::set<std::string_view> titles;
    for (const auto shown : allPages) {
        const auto& page = layoutOf(shown);
        EXPECT_EQ(page.category.has_value(), !page.emptyTitle.empty()) << page.title;
        EXPECT_NE(page.emptyHint.find(page.addTitle), std::string_view::npos) << page.title;
        EXPECT_TRUE(titles.insert(page.emptyTitle).second) << page.title;
    }
}

TEST_F(WindowLayoutTest, ExactlyTheListsWithAnEnableAllBooleanHaveThatSwitch) {
    for (const auto shown : allPages) {
        const auto& page = layoutOf(shown);
        const auto hasBoolean = page.category && !factsOf(*page.category).enableAllKey.empty();
        EXPECT_EQ(!page.enableAllTitle.empty(), hasBoolean) << page.title;
    }
}

} // namespace
} // namespace tarnwick::testing
