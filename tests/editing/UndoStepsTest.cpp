#include "editing/ListChange.h"
#include "tests/editing/UndoFixture.h"

namespace tarnwick::testing {
namespace {

using Names = std::vector<std::string>;

class UndoStepsTest : public UndoFixture {
protected:
    void rename(const std::string& name) {
        editing_.textEditing.endEditing("commonPathDisplayName", 0, name);
    }
    [[nodiscard]] std::string shownName() {
        return std::string(list(RuleCategory::commonPath)[0].text("displayName"));
    }
};

TEST_F(UndoStepsTest, AChainOfEditsGoesBackAndForthOneByOne) {
    std::vector<EverythingKept> states{everything()};
    const auto next = [&] { states.push_back(everything()); };
    remove(RuleCategory::createNewFile, 1);
    next();
    editing_.textEditing.endEditing("NewFileDisplayName", 0, "B");
    next();
    add(RuleCategory::createNewFile, {"/home/New.txt"});
    next();
    editing_.resetting.reset(RuleCategory::createNewFile);
    next();
    remove(RuleCategory::createNewFile, 0);
    next();
    enableAll(RuleCategory::createNewFile, true);
    next();
    for (int time = 0; time < 2; ++time) {
        for (auto state = states.rbegin() + 1; state != states.rend(); ++state) {
            undo();
            ASSERT_TRUE(everything() == *state) << state - states.rbegin();
        }
        for (auto state = states.begin() + 1; state != states.end(); ++state) {
            redo();
            ASSERT_TRUE(everything() == *state) << state - states.begin();
        }
    }
}

TEST_F(UndoStepsTest, ANewEditForgetsWhatCouldBeRepeated) {
    rename("One");
    rename("Two");
    undo();
    enableAll(RuleCategory::customIcon, false);
    EXPECT_EQ(platform_.undoHistory.redoNames(), Names());
    redo();
    EXPECT_EQ(shownName(), "One");
    EXPECT_EQ(steps(), (Names{"rename A", "disable all"}));
}

TEST_F(UndoStepsTest, AnEditThatAnActionEndsIsAStepOfItsOwnBeforeIt) {
    const auto before = everything();
    tables_.openEdit = [this] { editing_.textEditing.endEditing("CustomIconName", 1, "New"); };
    remove(RuleCategory::customIcon, 1);
    EXPECT_EQ(steps(), (Names{"rename B", "remove New"}));
    undo();
    EXPECT_EQ(list(RuleCategory::customIcon)[1].text("displayName"), "New");
    undo();
    EXPECT_TRUE(everything() == before);
}

TEST_F(UndoStepsTest, WhatChangesNoRecordAndNoFileIsNoStep) {
    remove(RuleCategory::customIcon, -1);
    editing_.textEditing.endEditing("Note", 0, "A");
    editing_.toggling.set(RuleCategory::copyFilesTo, 3, field::enable, false);
    editing_.reordering.acceptDrop(RuleCategory::commonPath, RuleCategory::commonPath, 1, 1);
    editing_.reordering.acceptDrop(RuleCategory::commonPath, RuleCategory::commonPath, 1, 9);
    add(RuleCategory::customIcon, {"/home/unreadable.png"});
    editing_.resetting.reset(RuleCategory::commonPath);
    editing_.editor.publish(RuleCategory::customIcon);
    EXPECT_EQ(steps(), Names());
}

TEST_F(UndoStepsTest, AListThatCannotBeRebuiltIsNoStep) {
    platform_.images.missingNames.insert("Cloud");
    editing_.resetting.reset(RuleCategory::customIcon);
    EXPECT_EQ(steps(), Names());
}

TEST_F(UndoStepsTest, ASuiteListThatWasAbsentIsPublishedAsItThenIs) {
    platform_.preferences.shared.erase("arrOfCommonPath");
    rename("New");
    undo();
    EXPECT_EQ(texts(sharedList(RuleCategory::commonPath), "displayName"), (Names{"A", "B"}));
}

TEST_F(UndoStepsTest, AResetThatIsRepeatedPublishesNoDisabledRow) {
    editing_.resetting.reset(RuleCategory::createNewFile);
    undo();
    platform_.log.clear();
    redo();
    EXPECT_EQ(platform_.log.linesWith("shared set ").size(), 1U);
    EXPECT_EQ(sharedList(RuleCategory::createNewFile).size(), 9U);
    EXPECT_EQ(localList(RuleCategory::createNewFile).size(), 15U);
}

TEST_F(UndoStepsTest, NeitherStoreGetsAKeyOfUndo) {
    const auto keysOf = [](const PlistDictionary& store) {
        std::set<std::string> keys;
        for (const auto& entry : store) {
            keys.insert(entry.first);
        }
        return keys;
    };
    const auto localKeys = keysOf(platform_.preferences.local);
    const auto sharedKeys = keysOf(platform_.preferences.shared);
    remove(RuleCategory::createNewFile, 1);
    editing_.resetting.reset(RuleCategory::createNewFile);
    undo();
    undo();
    redo();
    EXPECT_EQ(keysOf(platform_.preferences.local), localKeys);
    EXPECT_EQ(keysOf(platform_.preferences.shared), sharedKeys);
}

TEST_F(UndoStepsTest, SeveralChangesInAGroupAreOneStep) {
    const auto before = everything();
    {
        const UndoSteps::Group group(editing_.editor.steps(), "all of it");
        remove(RuleCategory::createNewFile, 1);
        const UndoSteps::Group inner(editing_.editor.steps(), "a part of it");
        rename("New");
        editing_.resetting.reset(RuleCategory::createNewFile);
    }
    const auto after = everything();
    EXPECT_EQ(steps(), Names{"all of it"});
    for (int time = 0; time < 2; ++time) {
        undo();
        EXPECT_TRUE(everything() == before);
        EXPECT_EQ(platform_.undoHistory.redoNames(), Names{"all of it"});
        redo();
        EXPECT_TRUE(everything() == after);
        EXPECT_EQ(steps(), Names{"all of it"});
    }
}

TEST_F(UndoStepsTest, AGroupInWhichNothingChangesIsNoStep) {
    { const UndoSteps::Group group(editing_.editor.steps(), "nothing"); }
    EXPECT_EQ(steps(), Names());
}

TEST(ListChangeTest, AnyStateIsMadeOutOfAnyOther) {
    const auto record = [](int number, PlistValue enable) {
        return makeRecord({{"displayName", std::to_string(number)}, {"enable", std::move(enable)}});
    };
    std::vector<std::vector<RuleRecord>> states{{}, {record(1, 1)}};
    for (const auto& order : {std::vector{1, 2, 3, 4}, {2, 3, 4, 1}, {4, 1, 2, 3}, {1, 3, 2, 4}, {1, 2},
             {3, 4}, {1, 1, 2, 2}, {4, 3, 2, 1}}) {
        for (const auto& enable : {PlistValue(1), PlistValue(true), PlistValue("1")}) {
            std::vector<RuleRecord> state;
            for (const auto number : order) {
                state.push_back(record(number, number == 3 ? PlistValue(0) : enable));
            }
            states.push_back(state);
            for (auto& changed : state) {
                changed = changed.without("enable");
            }
            states.push_back(std::move(state));
        }
    }
    for (const auto& from : states) {
        for (const auto& to : states) {
            const ListChange change(from, to);
            EXPECT_TRUE(change.applied(from) == to);
            for (std::size_t row = 0; row < from.size(); ++row) {
                if (const auto place = change.placeOf(row)) {
                    ASSERT_LT(*place, to.size());
                    const auto name = [](const RuleRecord& shown) { return shown.text("displayName"); };
                    // Only a record that was edited in its place has another name there.
                    EXPECT_TRUE(name(to[*place]) == name(from[row]) || *place == row);
                }
            }
            EXPECT_EQ(change.isEmpty(), from == to);
        }
    }
}

} // namespace
} // namespace tarnwick::testing
