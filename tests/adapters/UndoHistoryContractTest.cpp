#include "Pool.h"

#include "tests/adapters/UndoProbe.h"
#include "tests/support/InMemoryUndoHistory.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <ostream>
#include <string>

namespace tarnwick::testing {
namespace {

/// One implementation of the port with the two menu items in front of it.
struct History {
    virtual ~History() = default;
    virtual UndoHistory& port() = 0;
    virtual void undo() = 0;
    virtual void redo() = 0;
    [[nodiscard]] virtual std::string undoName() = 0;
    [[nodiscard]] virtual std::string redoName() = 0;
};

struct InMemory final : History {
    InMemoryUndoHistory history;

    UndoHistory& port() override { return history; }
    void undo() override { history.undo(); }
    void redo() override { history.redo(); }
    std::string undoName() override { return lastOf(history.undoNames()); }
    std::string redoName() override { return lastOf(history.redoNames()); }
    static std::string lastOf(const std::vector<std::string>& names) {
        return names.empty() ? std::string() : names.back();
    }
};

struct Foundation final : History {
    UndoProbe probe;

    UndoHistory& port() override { return probe.history(); }
    void undo() override { probe.undo(); }
    void redo() override { probe.redo(); }
    std::string undoName() override { return probe.undoName(); }
    std::string redoName() override { return probe.redoName(); }
};

struct Implementation {
    const char* name;
    std::unique_ptr<History> (*make)();
};

void PrintTo(const Implementation& implementation, std::ostream* stream) {
    *stream << implementation.name;
}

/// A number that is changed in steps, each of which leads back.
class UndoHistoryContract : public ::testing::TestWithParam<Implementation> {
protected:
    void set(int value, const std::string& name) {
        history->port().registerUndo(name, [this, former = number, name] { set(former, name); });
        number = value;
    }

    Pool pool;
    std::unique_ptr<History> history = GetParam().make();
    int number = 0;
};

TEST_P(UndoHistoryContract, WithoutAStepThereIsNothingToTakeBackOrToRepeat) {
    EXPECT_EQ(history->undoName(), "");
    EXPECT_EQ(history->redoName(), "");
}

TEST_P(UndoHistoryContract, AStepIsTakenBackAndRepeatedAsOftenAsOneLikes) {
    set(1, "One");
    for (int time = 0; time < 3; ++time) {
        history->undo();
        EXPECT_EQ(number, 0);
        EXPECT_EQ(history->undoName(), "");
        EXPECT_EQ(history->redoName(), "One");
        history->redo();
        EXPECT_EQ(number, 1);
        EXPECT_EQ(history->undoName(), "One");
        EXPECT_EQ(history->redoName(), "");
    }
}

TEST_P(UndoHistoryContract, StepsOfOneMomentAreTakenBackOneByOneTheLastOneFirst) {
    set(1, "One");
    set(2, "Two \u201C\u8868\u201D");
    set(3, "Three");
    history->undo();
    EXPECT_EQ(number, 2);
    EXPECT_EQ(history->undoName(), "Two \u201C\u8868\u201D");
    EXPECT_EQ(history->redoName(), "Three");
    history->undo();
    EXPECT_EQ(number, 1);
    EXPECT_EQ(history->undoName(), "One");
    history->redo();
    history->redo();
    EXPECT_EQ(number, 3);
    EXPECT_EQ(history->undoName(), "Three");
}

TEST_P(UndoHistoryContract, ANewStepForgetsWhatCouldBeRepeated) {
    set(1, "One");
    set(2, "Two");
    history->undo();
    set(5, "Five");
    EXPECT_EQ(history->redoName(), "");
    history->undo();
    EXPECT_EQ(number, 1);
    history->undo();
    EXPECT_EQ(number, 0);
}

TEST_P(UndoHistoryContract, ThereAreAsManyStepsAsOneLikes) {
    for (int value = 1; value <= 1000; ++value) {
        set(value, std::to_string(value));
    }
    for (int value = 1000; value > 0; --value) {
        ASSERT_EQ(history->undoName(), std::to_string(value));
        history->undo();
        ASSERT_EQ(number, value - 1);
    }
    EXPECT_EQ(history->undoName(), "");
}

TEST_P(UndoHistoryContract, AClearedHistoryHasNoSteps) {
    set(1, "One");
    set(2, "Two");
    history->undo();
    history->port().clear();
    EXPECT_EQ(history->undoName(), "");
    EXPECT_EQ(history->redoName(), "");
    set(3, "Three");
    history->undo();
    EXPECT_EQ(number, 1);
}

TEST_P(UndoHistoryContract, WhatAStepClearsIsGoneOnceTheStepIsOver) {
    set(1, "One");
    history->port().registerUndo("Two", [this] {
        number = -1;
        history->port().clear();
    });
    history->undo();
    EXPECT_EQ(number, -1);
    EXPECT_EQ(history->undoName(), "");
    EXPECT_EQ(history->redoName(), "");
    set(7, "Seven");
    history->undo();
    EXPECT_EQ(number, -1);
    EXPECT_EQ(history->redoName(), "Seven");
}

INSTANTIATE_TEST_SUITE_P(Every, UndoHistoryContract,
    ::testing::Values(
        Implementation{"InMemory", []() -> std::unique_ptr<History> { return std::make_unique<InMemory>(); }},
        Implementation{
            "Foundation", []() -> std::unique_ptr<History> { return std::make_unique<Foundation>(); }}),
    [](const auto& info) { return std::string(info.param.name); });

} // namespace
} // namespace tarnwick::testing
