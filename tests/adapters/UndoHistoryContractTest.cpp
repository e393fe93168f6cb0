#include "Contract.h"

#include "tests/adapters/UndoProbe.h"
#include "tests/support/InMemoryUndoHistory.h"

namespace tarnwick::testing {
namespace {

/// The history with the two menu items in front of it.
class History {
public:
    explicit History(Implementation implementation) {
        if (implementation == Implementation::overThePlatform) {
            probe_ = std::make_unique<UndoProbe>();
        }
    }
    UndoHistory& port() { return probe_ ? probe_->history() : memory_; }
    void undo() { probe_ ? probe_->undo() : memory_.undo(); }
    void redo() { probe_ ? probe_->redo() : memory_.redo(); }
    std::string undoName() { return probe_ ? probe_->undoName() : lastOf(memory_.undoNames()); }
    std::string redoName() { return probe_ ? probe_->redoName() : lastOf(memory_.redoNames()); }

private:
    static std::string lastOf(const std::vector<std::string>& names) {
        return names.empty() ? std::string() : names.back();
    }

    InMemoryUndoHistory memory_;
    std::unique_ptr<UndoProbe> probe_;
};

/// A number that is changed in steps, each of which leads back.
class UndoHistoryContract : public Contract<History> {
protected:
    void set(int value, const std::string& name) {
        harness_.port().registerUndo(name, [this, former = number, name] { set(former, name); });
        number = value;
    }

    int number = 0;
};

TEST_P(UndoHistoryContract, WithoutAStepThereIsNothingToTakeBackOrToRepeat) {
    EXPECT_EQ(harness_.undoName(), "");
    EXPECT_EQ(harness_.redoName(), "");
}

TEST_P(UndoHistoryContract, AStepIsTakenBackAndRepeatedAsOftenAsOneLikes) {
    set(1, "One");
    for (int time = 0; time < 3; ++time) {
        harness_.undo();
        EXPECT_EQ(number, 0);
        EXPECT_EQ(harness_.undoName(), "");
        EXPECT_EQ(harness_.redoName(), "One");
        harness_.redo();
        EXPECT_EQ(number, 1);
        EXPECT_EQ(harness_.undoName(), "One");
        EXPECT_EQ(harness_.redoName(), "");
    }
}

TEST_P(UndoHistoryContract, StepsOfOneMomentAreTakenBackOneByOneTheLastOneFirst) {
    set(1, "One");
    set(2, "Two \u201C\u8868\u201D");
    set(3, "Three");
    harness_.undo();
    EXPECT_EQ(number, 2);
    EXPECT_EQ(harness_.undoName(), "Two \u201C\u8868\u201D");
    EXPECT_EQ(harness_.redoName(), "Three");
    harness_.undo();
    EXPECT_EQ(number, 1);
    EXPECT_EQ(harness_.undoName(), "One");
    harness_.redo();
    harness_.redo();
    EXPECT_EQ(number, 3);
    EXPECT_EQ(harness_.undoName(), "Three");
}

TEST_P(UndoHistoryContract, ANewStepForgetsWhatCouldBeRepeated) {
    set(1, "One");
    set(2, "Two");
    harness_.undo();
    set(5, "Five");
    EXPECT_EQ(harness_.redoName(), "");
    harness_.undo();
    EXPECT_EQ(number, 1);
    harness_.undo();
    EXPECT_EQ(number, 0);
}

TEST_P(UndoHistoryContract, ThereAreAsManyStepsAsOneLikes) {
    for (int value = 1; value <= 1000; ++value) {
        set(value, std::to_string(value));
    }
    for (int value = 1000; value > 0; --value) {
        ASSERT_EQ(harness_.undoName(), std::to_string(value));
        harness_.undo();
        ASSERT_EQ(number, value - 1);
    }
    EXPECT_EQ(harness_.undoName(), "");
}

TEST_P(UndoHistoryContract, OtherStepsCanTakeTheirPlace) {
    set(1, "One");
    set(2, "Two");
    harness_.undo();
    harness_.port().replaceAll({{"Five", [this] { set(5, "Five"); }}, {"Six", [this] { set(6, "Six"); }}});
    EXPECT_EQ(harness_.undoName(), "Six");
    EXPECT_EQ(harness_.redoName(), "");
    harness_.undo();
    EXPECT_EQ(number, 6);
    EXPECT_EQ(harness_.redoName(), "Six");
    EXPECT_EQ(harness_.undoName(), "Five");
    harness_.undo();
    EXPECT_EQ(number, 5);
    EXPECT_EQ(harness_.undoName(), "");
}

TEST_P(UndoHistoryContract, AHistoryWithoutAnyHasNoSteps) {
    set(1, "One");
    set(2, "Two");
    harness_.undo();
    harness_.port().replaceAll({});
    EXPECT_EQ(harness_.undoName(), "");
    EXPECT_EQ(harness_.redoName(), "");
    set(3, "Three");
    harness_.undo();
    EXPECT_EQ(number, 1);
}

TEST_P(UndoHistoryContract, WhatAStepReplacesIsAnotherOnceTheStepIsOver) {
    set(1, "One");
    harness_.port().registerUndo("Two", [this] {
        number = -1;
        harness_.port().replaceAll({{"Zero", [this] { set(0, "Zero"); }}});
    });
    harness_.undo();
    EXPECT_EQ(number, -1);
    EXPECT_EQ(harness_.undoName(), "Zero");
    EXPECT_EQ(harness_.redoName(), "");
    set(7, "Seven");
    harness_.undo();
    EXPECT_EQ(number, -1);
    EXPECT_EQ(harness_.redoName(), "Seven");
}

TARNWICK_BOTH_IMPLEMENTATIONS(UndoHistoryContract);

} // namespace
} // namespace tarnwick::testing
