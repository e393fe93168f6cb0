#include "tests/support/Categories.h"
#include "tests/support/SettingsFixture.h"

namespace tarnwick::testing {
namespace {

class TypeSelectTest : public SettingsFixture {
protected:
    void SetUp() override {
        storeList(folders, {folder("Documents"), folder("downloads"), folder("\u00C4rger"), folder("Do it"),
                               folder("Stra\u00DFe"), folder("\u4E2D\u6587")});
        launch();
    }
    [[nodiscard]] static RuleRecord folder(std::string name) {
        return makeRecord({{"realPath", "/somewhere"}, {"displayName", std::move(name)}});
    }
    /// Each character by itself, a tenth of a second after the one before. Whether the last was taken.
    bool type(std::initializer_list<std::string_view> characters) {
        bool isTaken = false;
        for (const auto& character : characters) {
            seconds_ += 0.1;
            isTaken = controller_.finding().typed(folders, character, seconds_);
        }
        return isTaken;
    }
    bool erase() {
        seconds_ += 0.1;
        return controller_.finding().erased(folders, seconds_);
    }
    [[nodiscard]] long selected() const { return window_.selectedRow(folders); }

    double seconds_ = 1000;
};

TEST_F(TypeSelectTest, TheFirstRowIsSelectedWhoseNameBeginsWithWhatIsTyped) {
    EXPECT_TRUE(type({"d"}));
    EXPECT_EQ(selected(), 0);
    type({"o", "w"});
    EXPECT_EQ(selected(), 1);
}

TEST_F(TypeSelectTest, TheFirstOfAllIsSelectedWhateverWasSelectedBefore) {
    window_.table(folders).selected = 3;
    type({"d"});
    EXPECT_EQ(selected(), 0);
}

TEST_F(TypeSelectTest, CaseAndDiacriticsDoNotCount) {
    type({"A", "R"});
    EXPECT_EQ(selected(), 2);
    seconds_ += 5;
    type({"S", "t", "r", "a", "s", "s"});
    EXPECT_EQ(selected(), 4);
    seconds_ += 5;
    type({"\u4E2D"});
    EXPECT_EQ(selected(), 5);
}

TEST_F(TypeSelectTest, AfterAPauseTypingBeginsAnew) {
    type({"d", "o"});
    seconds_ += TypeSelect::pauseSeconds;
    type({"s"});
    EXPECT_EQ(selected(), 4);
}

TEST_F(TypeSelectTest, WithoutAPauseItGoesOnAndWhatNoNameBeginsWithLeavesTheSelection) {
    type({"d", "o"});
    EXPECT_TRUE(type({"s"}));
    EXPECT_EQ(selected(), 0);
}

TEST_F(TypeSelectTest, ASpaceIsPartOfTheNameOnlyWhileOneIsBeingTyped) {
    EXPECT_FALSE(type({" "}));
    EXPECT_TRUE(type({"d", "o", " "}));
    EXPECT_EQ(selected(), 3);
    seconds_ += TypeSelect::pauseSeconds;
    EXPECT_FALSE(type({" "}));
    EXPECT_EQ(selected(), 3);
}

TEST_F(TypeSelectTest, TheLastCharacterCanBeTakenBack) {
    type({"d", "o", "x"});
    EXPECT_TRUE(erase());
    type({"w"});
    EXPECT_EQ(selected(), 1);
    EXPECT_TRUE(erase());
    EXPECT_EQ(selected(), 0);
    seconds_ += 5;
    type({"s", "t", "r", "\u00E9"});
    EXPECT_TRUE(erase());
    type({"a"});
    EXPECT_EQ(selected(), 4);
}

TEST_F(TypeSelectTest, WhereNothingIsLeftTheSelectionStaysAndErasingStillMeansTyping) {
    type({"s"});
    for (int time = 0; time < 15; ++time) {
        EXPECT_TRUE(erase());
        EXPECT_EQ(selected(), 4);
    }
    EXPECT_FALSE(type({" "}));
    type({"d"});
    EXPECT_EQ(selected(), 0);
}

TEST_F(TypeSelectTest, ErasingMeansSomethingElseWhereNothingIsBeingTyped) {
    EXPECT_FALSE(erase());
    type({"d"});
    seconds_ += TypeSelect::pauseSeconds;
    EXPECT_FALSE(erase());
    type({"d"});
    window_.table(folders).selected = 2;
    EXPECT_FALSE(erase());
    type({"d"});
    EXPECT_FALSE(controller_.finding().erased(RuleCategory::others, seconds_));
}

TEST_F(TypeSelectTest, AnotherSelectionBeginsAnew) {
    type({"d", "o"});
    window_.table(folders).selected = 2;
    EXPECT_FALSE(type({" "}));
    type({"s"});
    EXPECT_EQ(selected(), 4);
}

TEST_F(TypeSelectTest, AnotherTableBeginsAnew) {
    type({"d"});
    EXPECT_FALSE(controller_.finding().typed(RuleCategory::others, " ", seconds_));
    EXPECT_TRUE(controller_.finding().typed(RuleCategory::others, "c", seconds_));
    EXPECT_EQ(window_.selectedRow(RuleCategory::others), 0);
}

TEST_F(TypeSelectTest, NamesAreThoseThatAreShown) {
    platform_.bundle.texts = {{"Downloads", "T\u00E9l\u00E9chargements"}};
    storeList(folders, {makeRecord({{"realPath", "/Users/" + platform_.folders.userName() + "/Downloads"}})});
    launch();
    type({"t", "e", "l"});
    EXPECT_EQ(selected(), 0);
}

TEST_F(TypeSelectTest, ARenamedRuleIsFoundUnderItsNewName) {
    type({"d"});
    controller_.textEdited("commonPathDisplayName", 3, "Xylophone");
    seconds_ += 5;
    type({"x"});
    EXPECT_EQ(selected(), 3);
}

} // namespace
} // namespace tarnwick::testing
