#include "tests/editing/LetterLists.h"

namespace tarnwick::testing {
namespace {

class ReorderRulesTest : public LetterListTest {
protected:
    void drop(RuleCategory category, long from, long to) {
        editing_.reordering.acceptDrop(category, category, from, to);
    }

    /// The editors that the load adds to an Others list without them are taken out again.
    void launchWithOthers(const std::string& names, std::size_t icons) {
        storeLetters(RuleCategory::customIcon, std::string(icons, 'i'));
        storeLetters(RuleCategory::others, names);
        launch();
        for (int editor = 0; editor < 3; ++editor) {
            tables_.table(RuleCategory::others).selected = 6;
            editing_.removing.remove(RuleCategory::others);
        }
        platform_.log.clear();
    }
};

TEST_F(ReorderRulesTest, MovingUpLandsExactlyInTheGap) {
    storeLetters(RuleCategory::commonPath, "01234");
    launch();
    drop(RuleCategory::commonPath, 3, 1);
    EXPECT_EQ(paths(), "03124");
}

TEST_F(ReorderRulesTest, DroppingBelowTheLastRowMovesToTheEnd) {
    storeLetters(RuleCategory::commonPath, "012");
    launch();
    drop(RuleCategory::commonPath, 0, 3);
    EXPECT_EQ(paths(), "120");
}

TEST_F(ReorderRulesTest, MovingDownLandsOnePlaceFurtherThanTheGap) {
    storeLetters(RuleCategory::commonPath, "0123");
    launch();
    drop(RuleCategory::commonPath, 0, 2);
    EXPECT_EQ(paths(), "1203");
}

TEST_F(ReorderRulesTest, ADropStoresWithoutSynchronisingThenPublishesReloadsAndDeselects) {
    storeLetters(RuleCategory::commonPath, "012");
    launch();
    tables_.table(RuleCategory::commonPath).selected = 0;
    drop(RuleCategory::commonPath, 2, 0);
    EXPECT_EQ(platform_.log.lines(),
        (std::vector<std::string>{"local set arrOfCommonPath", "shared open H7Q2ZK5RX9.org.halvane.Tarnwick",
            "shared set arrOfCommonPath", "shared synchronise", "reload commonPath", "deselect commonPath"}));
    EXPECT_EQ(tables_.table(RuleCategory::commonPath).selected, -1);
}

class ReorderInTest : public ReorderRulesTest, public ::testing::WithParamInterface<RuleCategory> {};

TEST_P(ReorderInTest, StoresAndPublishesTheMovedOrder) {
    launch();
    editing_.resetting.reset(RuleCategory::copyFilesTo);
    if (GetParam() == RuleCategory::commonPath) {
        for (const auto* folder : {"/a/A", "/a/B", "/a/C"}) {
            editing_.adding.add(RuleCategory::commonPath);
            platform_.panels.confirm({folder});
        }
    }
    const auto before = localList(GetParam());
    drop(GetParam(), 2, 0);
    const auto& after = localList(GetParam());
    ASSERT_EQ(after.size(), before.size());
    EXPECT_EQ(after[0], before[2]);
    EXPECT_EQ(after[1], before[0]);
    EXPECT_EQ(after[2], before[1]);
    EXPECT_EQ(sharedList(GetParam())[0], before[2]);
}

INSTANTIATE_TEST_SUITE_P(Every, ReorderInTest, ::testing::ValuesIn(allRuleCategories));

TEST_F(ReorderRulesTest, ADragFromAnotherTableOrFromOutsideChangesNothingAndReportsSuccess) {
    launch();
    editing_.reordering.acceptDrop(RuleCategory::others, RuleCategory::customIcon, 0, 3);
    editing_.reordering.acceptDrop(RuleCategory::others, std::nullopt, 0, 3);
    editing_.reordering.acceptDrop(std::nullopt, std::nullopt, 0, 3);
    EXPECT_TRUE(platform_.log.lines().empty());
}

TEST_F(ReorderRulesTest, AFixedActionCannotBeMovedNotEvenReloaded) {
    launch();
    for (const long row : {15L, 16L, 17L}) {
        drop(RuleCategory::others, row, 0);
    }
    EXPECT_TRUE(platform_.log.lines().empty());
}

TEST_F(ReorderRulesTest, ARowThatTheListDoesNotHaveIsNotMoved) {
    launch();
    drop(RuleCategory::customIcon, -1, 0);
    drop(RuleCategory::customIcon, 20, 0);
    drop(RuleCategory::customIcon, 0, -1);
    EXPECT_TRUE(platform_.log.lines().empty());
}

TEST_F(ReorderRulesTest, OthersAsLongAsCustomIconMovesToTheEndBelowTheLastRow) {
    launchWithOthers("abcdefgh", 8);
    drop(RuleCategory::others, 0, 8);
    EXPECT_EQ(others(), "bcdefgha");
}

TEST_F(ReorderRulesTest, OthersCountsTheCustomIconsSoTheGapOfThatNumberLandsOneHigher) {
    launchWithOthers("01234567", 5);
    drop(RuleCategory::others, 7, 5);
    EXPECT_EQ(others(), "01237456");
}

TEST_F(ReorderRulesTest, AnInsertionPastTheEndPutsTheRecordBackAndSavesNothing) {
    launchWithOthers("01234567", 5);
    drop(RuleCategory::others, 2, 8);
    EXPECT_EQ(others(), "01234567");
    EXPECT_TRUE(platform_.log.lines().empty());
}

TEST_F(ReorderRulesTest, WithoutCustomIconsTheGapAboveTheFirstOthersRowHasNoPlace) {
    launch();
    while (rows(RuleCategory::customIcon) > 0) {
        tables_.table(RuleCategory::customIcon).selected = 0;
        editing_.removing.remove(RuleCategory::customIcon);
    }
    const auto before = others();
    platform_.log.clear();
    drop(RuleCategory::others, 4, 0);
    EXPECT_EQ(others(), before);
    EXPECT_TRUE(platform_.log.lines().empty());
}

TEST_F(ReorderRulesTest, ARenamedFixedActionStaysImmovable) {
    launch();
    editing_.textEditing.endEditing("OthersDisplayName", 16, "Mine");
    platform_.log.clear();
    drop(RuleCategory::others, 16, 0);
    EXPECT_TRUE(platform_.log.lines().empty());
}

TEST_F(ReorderRulesTest, ARowDroppedInItsOwnGapStaysAndIsSavedAllTheSame) {
    storeLetters(RuleCategory::commonPath, "012");
    launch();
    drop(RuleCategory::commonPath, 1, 1);
    EXPECT_EQ(paths(), "012");
    EXPECT_TRUE(platform_.log.holds("shared set arrOfCommonPath"));
}

TEST_F(ReorderRulesTest, ADropBetweenRowsMayDoAnythingAndOnARowNothing) {
    EXPECT_EQ(validateDrop(DropPlace::above), 0xFFFFFFFFFFFFFFFFU);
    EXPECT_EQ(validateDrop(DropPlace::on), 0U);
}

} // namespace
} // namespace tarnwick::testing
