#include "tests/editing/LetterLists.h"

namespace tarnwick::testing {
namespace {

constexpr auto up = MoveDirection::up;
constexpr auto down = MoveDirection::down;

class MoveSelectionTest : public LetterListTest {
protected:
    void launchWithPaths(const std::string& letters, long selected) {
        storeLetters(RuleCategory::commonPath, letters);
        launch();
        tables_.table(RuleCategory::commonPath).selected = selected;
        platform_.log.clear();
    }
    [[nodiscard]] long selected(RuleCategory category = RuleCategory::commonPath) {
        return tables_.table(category).selected;
    }
    [[nodiscard]] bool canMove(MoveDirection direction) const {
        return editing_.reordering.canMoveSelection(RuleCategory::commonPath, direction);
    }
    void move(MoveDirection direction) {
        editing_.reordering.moveSelection(RuleCategory::commonPath, direction);
    }
};

TEST_F(MoveSelectionTest, UpChangesPlacesWithTheRowBeforeAndStaysSelected) {
    launchWithPaths("ABCD", 2);
    move(up);
    EXPECT_EQ(paths(), "ACBD");
    EXPECT_EQ(selected(), 1);
}

TEST_F(MoveSelectionTest, DownChangesPlacesWithTheRowAfterAndStaysSelected) {
    launchWithPaths("ABCD", 1);
    move(down);
    EXPECT_EQ(paths(), "ACBD");
    EXPECT_EQ(selected(), 2);
}

TEST_F(MoveSelectionTest, AMoveIsTheDropItselfAndThenASelection) {
    launchWithPaths("ABC", 0);
    move(down);
    const auto moved = platform_.log.lines();

    platform_.log.clear();
    editing_.reordering.acceptDrop(RuleCategory::commonPath, RuleCategory::commonPath, 1, 0);
    auto expected = platform_.log.lines();
    ASSERT_FALSE(expected.empty());
    expected.push_back("select commonPath 1");
    EXPECT_EQ(moved, expected);
}

TEST_F(MoveSelectionTest, NothingMovesWithoutASelectionOrPastTheEnds) {
    launchWithPaths("AB", -1);
    EXPECT_FALSE(canMove(up));
    EXPECT_FALSE(canMove(down));
    move(up);
    move(down);
    tables_.table(RuleCategory::commonPath).selected = 0;
    EXPECT_FALSE(canMove(up));
    EXPECT_TRUE(canMove(down));
    move(up);
    tables_.table(RuleCategory::commonPath).selected = 1;
    EXPECT_TRUE(canMove(up));
    EXPECT_FALSE(canMove(down));
    move(down);
    EXPECT_EQ(paths(), "AB");
    EXPECT_TRUE(platform_.log.linesWith("local set").empty());
}

TEST_F(MoveSelectionTest, AFixedItemStaysWhereItIsAndSelected) {
    launch();
    constexpr auto category = RuleCategory::others;
    constexpr long translation = 16;
    const auto before = others();
    tables_.table(category).selected = translation;
    ASSERT_EQ(list(category)[translation].text(field::action), "Translate by Google");
    for (const auto direction : {up, down}) {
        EXPECT_FALSE(editing_.reordering.canMoveSelection(category, direction));
        editing_.reordering.moveSelection(category, direction);
    }
    EXPECT_EQ(others(), before);
    EXPECT_EQ(selected(category), translation);
    EXPECT_TRUE(platform_.log.linesWith("local set").empty());
}

/// As many custom icons as that, which are counted when an item of Others is dropped.
class MoveAmongOthersTest : public MoveSelectionTest, public ::testing::WithParamInterface<int> {};

TEST_P(MoveAmongOthersTest, IsOfferedExactlyWhenTheDropMovesTheItem) {
    launch();
    editing_.editor.assign(RuleCategory::customIcon,
        std::vector<RuleRecord>(static_cast<std::size_t>(GetParam()), RuleRecord()), StepKind::enableAll);
    constexpr auto category = RuleCategory::others;
    const auto before = list(category).records();
    int offered = 0;
    for (long row = 0; row < rows(category); ++row) {
        for (const auto direction : {up, down}) {
            tables_.table(category).selected = row;
            const auto can = editing_.reordering.canMoveSelection(category, direction);
            offered += can ? 1 : 0;
            editing_.reordering.acceptDrop(category, category, row, direction == up ? row - 1 : row + 1);
            EXPECT_EQ(can, list(category).records() != before) << row << (direction == up ? " up" : " down");
            editing_.editor.assign(category, before, StepKind::enableAll);
        }
    }
    EXPECT_GT(offered, 0);
}

INSTANTIATE_TEST_SUITE_P(Icons, MoveAmongOthersTest, ::testing::Values(0, 1, 3, 8, 17, 18, 20));

TEST_F(MoveSelectionTest, AnItemThatTheNumberOfIconsHoldsBackIsNotStoredAnew) {
    storeLetters(RuleCategory::customIcon, "123");
    launch();
    constexpr auto category = RuleCategory::others;
    tables_.table(category).selected = 2;
    editing_.reordering.moveSelection(category, down);
    EXPECT_TRUE(platform_.log.lines().empty());
    EXPECT_EQ(selected(category), 2);
}

} // namespace
} // namespace tarnwick::testing
