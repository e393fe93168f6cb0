#include "ui/WindowLayout.h"
#include "prefs/PreferenceKeys.h"
#include "tests/support/SettingsFixture.h"

#include <algorithm>
#include <set>

namespace tarnwick::testing {
namespace {

class WindowLayoutTest : public SettingsFixture {};

TEST_F(WindowLayoutTest, ThePagesStandInTheOrderOfTheTabView) {
    for (std::size_t index = 0; index < pageCount; ++index) {
        EXPECT_EQ(static_cast<std::size_t>(pageLayouts()[index].page), index);
    }
}

TEST_F(WindowLayoutTest, EachListHasItsPageWithItsNameAndSwitchAmongTheColumns) {
    for (const auto category : allRuleCategories) {
        const auto& page = layoutOf(category);
        EXPECT_EQ(page.category, category);
        const auto holds = [&page](std::string_view identifier) {
            return std::any_of(page.columns.begin(), page.columns.end(),
                [identifier](const auto& column) { return column.identifier == identifier; });
        };
        EXPECT_TRUE(holds(page.nameColumn)) << page.title;
        EXPECT_EQ(holds(page.switchColumn), category != RuleCategory::commonPath) << page.title;
    }
}

TEST_F(WindowLayoutTest, EveryColumnOfThePagesHasACell) {
    storeList(RuleCategory::copyFilesTo, {makeRecord({{"realPath", "/a"}})});
    storeList(RuleCategory::commonPath, {makeRecord({{"realPath", "/a"}})});
    launch();
    for (const auto& page : pageLayouts()) {
        for (const auto& column : page.columns) {
            EXPECT_NE(controller_.viewForTableColumn(*page.category, column.identifier, 0), CellView{})
                << column.identifier;
        }
    }
}

TEST_F(WindowLayoutTest, EveryOptionSwitchStandsOnExactlyOnePage) {
    std::set<std::string_view> keys;
    for (const auto& page : pageLayouts()) {
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
    for (const auto& page : pageLayouts()) {
        EXPECT_EQ(page.category.has_value(), !page.emptyTitle.empty()) << page.title;
        EXPECT_NE(page.emptyHint.find(page.addTitle), std::string_view::npos) << page.title;
        EXPECT_TRUE(titles.insert(page.emptyTitle).second) << page.title;
    }
}

TEST_F(WindowLayoutTest, ExactlyTheListsWithAnEnableAllBooleanHaveThatSwitch) {
    for (const auto& page : pageLayouts()) {
        const auto hasBoolean = page.category && !factsOf(*page.category).enableAllKey.empty();
        EXPECT_EQ(!page.enableAllTitle.empty(), hasBoolean) << page.title;
    }
}

} // namespace
} // namespace tarnwick::testing
