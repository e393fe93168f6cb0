#include "tests/editing/UndoFixture.h"
#include "tests/support/Categories.h"

#include <random>

namespace tarnwick::testing {
namespace {

using Names = std::vector<std::string>;
using Records = std::vector<RuleRecord>;

/// Changes whose template files cannot be kept, and the steps before and after them.
class FinalChangeTest : public UndoFixture {
protected:
    void rename(long row, std::string_view name) {
        editing_.textEditing.endEditing("NewFileDisplayName", row, name);
    }
    void turn(long row, bool on) { editing_.toggling.set(templates, row, field::enable, on); }
    void move(long from, long to) { editing_.reordering.acceptDrop(templates, templates, from, to); }
    void removeForGood(long row) {
        platform_.files.failing.insert(heldFolder);
        remove(templates, row);
        platform_.files.failing.clear();
    }
    void resetForGood() {
        platform_.files.failing.insert(heldFolder);
        editing_.resetting.reset(templates);
        platform_.files.failing.clear();
    }
    [[nodiscard]] Records records(RuleCategory category = templates) { return list(category).records(); }
    [[nodiscard]] Names redoNames() const { return platform_.undoHistory.redoNames(); }
    [[nodiscard]] static Records without(Records records, std::size_t row) {
        records.erase(records.begin() + static_cast<std::ptrdiff_t>(row));
        return records;
    }
};

TEST_F(FinalChangeTest, ARemovalHappensAllTheSameAndIsNoStep) {
    removeForGood(0);
    EXPECT_EQ(contentOf("A.x"), "(none)");
    EXPECT_EQ(list(templates).size(), 3U);
    EXPECT_EQ(sharedList(templates).size(), 1U);
    EXPECT_EQ(steps(), Names());
    EXPECT_TRUE(
        platform_.log.holds("log template files that could not be kept: their removal cannot be undone"));
}

TEST_F(FinalChangeTest, EarlierStepsOfItsListComeBackWithoutTheLostRecord) {
    const auto before = everything();
    const auto first = records();
    rename(1, "New");
    turn(3, true);
    const auto second = records();
    removeForGood(0);
    turn(1, true);
    EXPECT_EQ(steps(), (Names{"rename B", "turn on D", "turn on C"}));
    undo();
    EXPECT_TRUE(records() == without(second, 0));
    undo();
    EXPECT_EQ(tables_.table(templates).selected, 2);
    undo();
    EXPECT_EQ(tables_.table(templates).selected, 0);
    EXPECT_TRUE(records() == without(first, 0));
    auto files = before.files;
    files.erase(templateFolder + "/A.x");
    EXPECT_TRUE(everything().files == files);
    redo();
    redo();
    EXPECT_TRUE(records() == without(second, 0));
    EXPECT_EQ(contentOf("New.x"), "content of B.x");
}

TEST_F(FinalChangeTest, StepsOfOtherListsComeBackAsIfNothingHadBeen) {
    const auto icons = records(RuleCategory::customIcon);
    const auto paths = records(RuleCategory::commonPath);
    remove(RuleCategory::customIcon, 1);
    removeForGood(0);
    remove(RuleCategory::commonPath, 2);
    undo();
    undo();
    EXPECT_TRUE(records(RuleCategory::customIcon) == icons);
    EXPECT_TRUE(records(RuleCategory::commonPath) == paths);
}

TEST_F(FinalChangeTest, StepsOfTheLostRecordAloneAreForgotten) {
    const auto before = records();
    turn(2, true);
    rename(0, "New");
    turn(0, false);
    move(0, 4);
    removeForGood(3);
    EXPECT_EQ(steps(), Names{"turn on C"});
    undo();
    EXPECT_TRUE(records() == without(before, 0));
}

TEST_F(FinalChangeTest, StepsFromBeforeTheLostRecordWasThereFitAsTheyAre) {
    const auto before = everything();
    rename(0, "New");
    add(templates, {"/home/New.txt", "/home/Other.txt"});
    removeForGood(4);
    platform_.files.files[templateFolder + "/New.txt"] = "somebody's";
    EXPECT_EQ(steps(), (Names{"rename A", "add"}));
    undo();
    EXPECT_EQ(list(templates).size(), 4U);
    EXPECT_EQ(contentOf("Other.txt"), "(none)");
    EXPECT_EQ(contentOf("New.txt"), "somebody's");
    platform_.files.files.erase(templateFolder + "/New.txt");
    undo();
    EXPECT_TRUE(everything() == before);
}

TEST_F(FinalChangeTest, RemovedRecordsComeBackToTheirPlaces) {
    const auto before = records();
    remove(templates, 3);
    remove(templates, 1);
    removeForGood(0);
    undo();
    undo();
    EXPECT_TRUE(records() == without(before, 0));
    EXPECT_EQ(contentOf("B.x"), "content of B.x");
    EXPECT_EQ(contentOf("D.pages/Contents/index"), "content of D.pages/Contents/index");
}

TEST_F(FinalChangeTest, AListThatWasResetBeforeComesBackWhole) {
    const auto before = everything();
    editing_.resetting.reset(templates);
    turn(1, false);
    removeForGood(0);
    undo();
    undo();
    EXPECT_TRUE(everything() == before);
    redo();
    EXPECT_EQ(list(templates).size(), 14U);
}

TEST_F(FinalChangeTest, AResetForGoodLeavesOnlyTheStepsThatStillFit) {
    const auto before = everything();
    turn(2, true);
    editing_.resetting.reset(templates);
    rename(0, "New");
    remove(RuleCategory::customIcon, 0);
    resetForGood();
    EXPECT_EQ(list(templates).size(), 15U);
    EXPECT_EQ(platform_.files.namesIn(templateFolder).size(), 30U);
    EXPECT_EQ(steps(), (Names{"turn on C", "reset", "remove A"}));
    undo();
    undo();
    undo();
    EXPECT_TRUE(everything() == before);
}

TEST_F(FinalChangeTest, AListThatWasReplacedComesBackWholeAfterAResetForGood) {
    const auto before = records();
    editing_.editor.replaceAll(templates, without(before, 1), {}, StepKind::importSettings);
    turn(1, true);
    resetForGood();
    EXPECT_EQ(steps(), Names{"import settings"});
    undo();
    EXPECT_TRUE(records() == before);
    redo();
    EXPECT_EQ(list(templates).size(), 15U);
}

TEST_F(FinalChangeTest, AResetThatIsTakenBackForGoodLeavesEarlierStepsAsTheyAre) {
    const auto before = everything();
    turn(2, true);
    editing_.resetting.reset(templates);
    platform_.files.failing.insert(heldFolder + "/2");
    undo();
    EXPECT_EQ(redoNames(), Names());
    EXPECT_EQ(steps(), Names{"turn on C"});
    undo();
    EXPECT_TRUE(everything() == before);
}

TEST_F(FinalChangeTest, WhatIsTakenBackForGoodIsNotRepeatedAndHindersNoEarlierStep) {
    const auto before = everything();
    turn(2, true);
    add(templates, {"/home/New.txt"});
    rename(1, "Later");
    undo();
    platform_.files.failing.insert(heldFolder);
    undo();
    EXPECT_EQ(contentOf("New.txt"), "(none)");
    EXPECT_EQ(redoNames(), Names());
    EXPECT_EQ(steps(), Names{"turn on C"});
    undo();
    EXPECT_TRUE(everything() == before);
}

TEST_F(FinalChangeTest, WhatIsRepeatedForGoodIsFinalFromThenOn) {
    const auto before = records();
    turn(2, true);
    remove(templates, 0);
    undo();
    platform_.files.failing.insert(heldFolder);
    redo();
    EXPECT_EQ(contentOf("A.x"), "(none)");
    EXPECT_EQ(steps(), Names{"turn on C"});
    undo();
    EXPECT_TRUE(records() == without(before, 0));
}

TEST_F(FinalChangeTest, AGroupWithAFinalChangeIsFinalAsAWhole) {
    const auto before = records(RuleCategory::commonPath);
    turn(2, true);
    editing_.textEditing.endEditing("commonPathDisplayName", 2, "New");
    remove(RuleCategory::customIcon, 0);
    {
        const UndoSteps::Group group(editing_.editor.steps(), "all of it");
        remove(RuleCategory::commonPath, 0);
        resetForGood();
    }
    EXPECT_EQ(steps(), (Names{"rename C", "remove A"}));
    undo();
    undo();
    EXPECT_TRUE(records(RuleCategory::commonPath) == without(before, 0));
}

/// Edits at random, each with the list after it; one record has a mark that no edit touches.
class FinalWalkTest : public FinalChangeTest, public ::testing::WithParamInterface<unsigned> {
protected:
    void makeOne() {
        const auto row = pick(rows(templates));
        switch (pick(7)) {
        case 0:
            rename(row, "Name " + std::to_string(pick(1000)));
            break;
        case 1:
            turn(row, pick(2) == 0);
            break;
        case 2:
        case 3:
            move(row, pick(rows(templates) + 1));
            break;
        case 4:
            if (row != marked()) {
                remove(templates, row);
            }
            break;
        case 5:
            enableAll(templates, pick(2) == 0);
            break;
        default: {
            const auto path = "/home/Added " + std::to_string(pick(1000)) + ".txt";
            platform_.files.files[path] = "added";
            add(templates, {path});
        }
        }
    }
    long pick(long count) {
        return static_cast<long>(random_() % static_cast<unsigned long>(std::max(count, 1L)));
    }
    [[nodiscard]] long marked() { return markedIn(records()); }
    [[nodiscard]] static long markedIn(const Records& records) {
        for (std::size_t row = 0; row < records.size(); ++row) {
            if (records[row].value("mark")) {
                return static_cast<long>(row);
            }
        }
        return -1;
    }

    std::minstd_rand random_{GetParam()};
};

TEST_P(FinalWalkTest, EveryEarlierStateComesBackButForTheLostRecord) {
    const auto lost = static_cast<std::size_t>(pick(4));
    editing_.editor.replace(templates, lost, records()[lost].with("mark", true), StepKind::editNote);
    std::vector<Records> states{records()};
    std::vector<std::size_t> counts{steps().size()};
    for (int edit = 0; edit < 30; ++edit) {
        makeOne();
        if (steps().size() > counts.back()) {
            states.push_back(records());
            counts.push_back(steps().size());
        }
    }
    removeForGood(marked());
    std::vector<Records> reached;
    do {
        reached.push_back(records());
        undo();
    } while (!(reached.back() == records() && steps().empty()));
    std::vector<Records> expected;
    for (auto state = states.rbegin(); state != states.rend(); ++state) {
        auto left = without(*state, static_cast<std::size_t>(markedIn(*state)));
        if (expected.empty() || !(expected.back() == left)) {
            expected.push_back(std::move(left));
        }
    }
    EXPECT_TRUE(reached == expected);
}

INSTANTIATE_TEST_SUITE_P(Seeds, FinalWalkTest, ::testing::Range(1U, 41U));

} // namespace
} // namespace tarnwick::testing
