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
        window_.table(RuleCategory::commonPath).selected = selected;
        platform_.log.clear();
    }
    [[nodiscard]] long selected(RuleCategory category = RuleCategory::commonPath) {
        return window_.table(category).selected;
    }
    [[nodiscard]] bool canMove(MoveDirection direction) const {
        return controller_.canMoveSelectedRule(RuleCategory::commonPath, direction);
    }
    void move(MoveDirection direction) { controller_.moveSelectedRule(RuleCategory::commonPath, direction); }
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
    controller_.acceptDrop(RuleCategory::commonPath, RuleCategory::commonPath, 1, 0);
    auto expected = platform_.log.lines();
    ASSERT_FALSE(expected.empty());
    expected.insert(expected.end(), {"select commonPath 1", "enable remove commonPath"});
    EXPECT_EQ(moved, expected);
}

TEST_F(MoveSelectionTest, TheRemoveButtonFollowsTheSelection) {
    launchWithPaths("ABC", 0);
    move(down);
    EXPECT_TRUE(window_.removeButton(RuleCategory::commonPath).enabled);
}

TEST_F(MoveSelectionTest, NothingMovesWithoutASelectionOrPastTheEnds) {
    launchWithPaths("AB", -1);
    EXPECT_FALSE(canMove(up));
    EXPECT_FALSE(canMove(down));
    move(up);
    move(down);
    window_.table(RuleCategory::commonPath).selected = 0;
    EXPECT_FALSE(canMove(up));
    EXPECT_TRUE(canMove(down));
    move(up);
    window_.table(RuleCategory::commonPath).selected = 1;
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
    auto& table = window_.table(category);
    for (table.selected = 0; controller_.canMoveSelectedRule(category, down); ++table.selected) {
        const auto cell = controller_.viewForTableColumn(category, "OthersDisplayName", table.selected);
        if (std::get_if<TextFieldCell>(&cell.control)->text == "Translate by Google") {
            break;
        }
    }
    const auto row = table.selected;
    platform_.log.clear();
    controller_.moveSelectedRule(category, up);
    EXPECT_EQ(others(), before);
    EXPECT_EQ(table.selected, row);
    EXPECT_TRUE(platform_.log.linesWith("local set").empty());
}

TEST_F(MoveSelectionTest, AnOthersItemAboveTheNumberOfIconsIsDroppedWhereItWas) {
    storeLetters(RuleCategory::customIcon, "123");
    launch();
    constexpr auto category = RuleCategory::others;
    const auto before = others();
    window_.table(category).selected = 2;
    controller_.moveSelectedRule(category, down);
    // The gap is counted against the custom icons: there it is the last one.
    EXPECT_EQ(others(), before);
    EXPECT_EQ(selected(category), 2);
}

} // namespace
} // namespace tarnwick::testing
