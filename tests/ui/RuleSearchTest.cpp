#include "tests/support/Categories.h"
#include "tests/support/SettingsFixture.h"

namespace tarnwick::testing {
namespace {

class RuleSearchTest : public SettingsFixture {
protected:
    void SetUp() override {
        storeList(folders, {folder("One", "/a/b"), folder("Zwei", "/a/One"), folder("Drei", "/c"),
                               folder("Phone", "/d"), folder("\u00DCben", "/\u00FCben/STRASSE")});
        launch();
    }
    [[nodiscard]] static RuleRecord folder(std::string name, std::string path) {
        return makeRecord({{"realPath", std::move(path)}, {"displayName", std::move(name)}});
    }
    void lookFor(std::string_view text) { finding().lookFor(folders, text); }
    [[nodiscard]] Finding& finding() { return controller_.finding(); }
    /// The rows that so many steps lead to.
    [[nodiscard]] std::vector<long> steps(SearchStep step, int times) {
        std::vector<long> rows;
        for (int time = 0; time < times; ++time) {
            finding().step(folders, step);
            rows.push_back(selected());
        }
        return rows;
    }
    [[nodiscard]] long selected() const { return window_.selectedRow(folders); }
    using Rows = std::vector<long>;
};

TEST_F(RuleSearchTest, NamesAndFoldersAreLookedThroughForwardsAroundTheEnd) {
    lookFor("one");
    EXPECT_EQ(selected(), 0);
    EXPECT_EQ(steps(SearchStep::next, 4), (Rows{1, 3, 0, 1}));
}

TEST_F(RuleSearchTest, AndBackwardsAroundTheBeginning) {
    lookFor("one");
    EXPECT_EQ(steps(SearchStep::previous, 4), (Rows{3, 1, 0, 3}));
}

TEST_F(RuleSearchTest, WithoutASelectedRowTheyBeginAtTheEnds) {
    lookFor("one");
    window_.table(folders).selected = -1;
    EXPECT_EQ(steps(SearchStep::previous, 1), Rows{3});
    window_.table(folders).selected = -1;
    EXPECT_EQ(steps(SearchStep::next, 1), Rows{0});
}

TEST_F(RuleSearchTest, MoreOfTheSameTextKeepsTheRowAsLongAsItHasIt) {
    window_.table(folders).selected = 1;
    lookFor("o");
    EXPECT_EQ(selected(), 1);
    lookFor("on");
    EXPECT_EQ(selected(), 1);
    lookFor("pho");
    EXPECT_EQ(selected(), 3);
}

TEST_F(RuleSearchTest, CaseAndDiacriticsDoNotCount) {
    lookFor("UBEN/stra\u00DF");
    EXPECT_EQ(selected(), 4);
    lookFor("u\u0308BEN");
    EXPECT_EQ(finding().count(folders), "1 of 1 found");
}

TEST_F(RuleSearchTest, WhatIsNowhereLeavesTheSelection) {
    window_.table(folders).selected = 2;
    lookFor("nowhere");
    EXPECT_EQ(steps(SearchStep::next, 2), (Rows{2, 2}));
    EXPECT_EQ(finding().count(folders), "Not found");
}

TEST_F(RuleSearchTest, WithoutATextNothingIsFoundOrSaid) {
    EXPECT_FALSE(finding().canStep());
    lookFor("one");
    EXPECT_TRUE(finding().canStep());
    lookFor("");
    EXPECT_FALSE(finding().canStep());
    window_.table(folders).selected = 2;
    EXPECT_EQ(steps(SearchStep::next, 1), Rows{2});
    EXPECT_EQ(finding().count(folders), "");
}

TEST_F(RuleSearchTest, ATextDoesNotReachFromOneCellIntoTheNext) {
    for (const auto* text : {"e/a", "one\n/a", "\n"}) {
        lookFor(text);
        EXPECT_EQ(finding().count(folders), "Not found") << text;
    }
}

TEST_F(RuleSearchTest, TheCountSaysWhichAndHowMany) {
    lookFor("one");
    EXPECT_EQ(finding().count(folders), "1 of 3 found");
    finding().step(folders, SearchStep::next);
    EXPECT_EQ(finding().count(folders), "2 of 3 found");
    window_.table(folders).selected = 2;
    EXPECT_EQ(finding().count(folders), "3 found: several");
    lookFor("drei");
    window_.table(folders).selected = -1;
    EXPECT_EQ(finding().count(folders), "1 found: one");
}

TEST_F(RuleSearchTest, AChangedListIsLookedThroughAnew) {
    lookFor("one");
    controller_.textEdited("commonPathDisplayName", 2, "None");
    EXPECT_EQ(finding().count(folders), "1 of 4 found");
    window_.table(folders).selected = 0;
    controller_.remove(folders);
    EXPECT_EQ(steps(SearchStep::next, 3), (Rows{1, 2, 0}));
}

TEST_F(RuleSearchTest, AnotherPageIsLookedThroughForTheSameText) {
    lookFor("one");
    EXPECT_EQ(finding().count(RuleCategory::createNewFile), "Not found");
    lookFor("docx");
    finding().step(RuleCategory::createNewFile, SearchStep::next);
    EXPECT_EQ(window_.selectedRow(RuleCategory::createNewFile), 3);
}

TEST_F(RuleSearchTest, ExtensionsAndNotesAreFoundAsTheyAreShownAndSizesAreNot) {
    platform_.bundle.texts = {{"Only for testing", "Nur zum Test"}};
    finding().lookFor(RuleCategory::others, "zum test");
    EXPECT_NE(window_.selectedRow(RuleCategory::others), -1);
    finding().lookFor(RuleCategory::others, "only for");
    EXPECT_EQ(finding().count(RuleCategory::others), "Not found");
    finding().lookFor(RuleCategory::customIcon, " x ");
    EXPECT_EQ(finding().count(RuleCategory::customIcon), "Not found");
}

TEST_F(RuleSearchTest, AStepEndsAnEditFirst) {
    lookFor("one");
    window_.openEdit = [this] { controller_.textEdited("commonPathDisplayName", 0, "Other"); };
    finding().step(folders, SearchStep::next);
    EXPECT_EQ(selected(), 1);
    EXPECT_EQ(finding().count(folders), "1 of 2 found");
}

} // namespace
} // namespace tarnwick::testing
