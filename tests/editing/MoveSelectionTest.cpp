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
    const auto before = others();
    auto& table = tables_.table(category);
    for (table.selected = 0; editing_.reordering.canMoveSelection(category, down); ++table.selected) {
        const auto row = static_cast<std::size_t>(table.selected);
        if (list(category)[row].text(field::action) == "Translate by Google") {
            break;
        }
    }
    const auto row = table.selected;
    platform_.log.clear();
    editing_.reordering.moveSelection(category, up);
    EXPECT_EQ(others(), before);
    EXPECT_EQ(table.selected, row);
    EXPECT_TRUE(platform_.log.linesWith("local set").empty());
}

TEST_F(MoveSelectionTest, AnOthersItemAboveTheNumberOfIconsIsDroppedWhereItWas) {
    storeLetters(RuleCategory::customIcon, "123");
    launch();
    constexpr auto category = RuleCategory::others;
    const auto before = others();
    tables_.table(category).selected = 2;
    editing_.reordering.moveSelection(category, down);
    // The gap is counted against the custom icons: there it is the last one.
    EXPECT_EQ(others(), before);
    EXPECT_EQ(selected(category), 2);
}

} // namespace
} // namespace tarnwick::testing
