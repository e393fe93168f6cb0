#include "tests/support/SettingsFixture.h"

namespace tarnwick::testing {
namespace {

using Names = std::vector<std::string>;

/// What the steps of edits in the window are called.
class StepNamesTest : public SettingsFixture {
protected:
    StepNamesTest() { launch(); }

    void remove(RuleCategory category, long row) {
        window_.table(category).selected = row;
        controller_.remove(category);
    }
    [[nodiscard]] std::string lastName() const {
        const auto names = platform_.undoHistory.undoNames();
        return names.empty() ? std::string() : names.back();
    }
};

TEST_F(StepNamesTest, ARuleIsCalledAsTheTableShowsItBeforeTheStep) {
    platform_.bundle.texts["PPT"] = "PowerPoint";
    controller_.textEdited("NewFileDisplayName", 5, "Slides");
    EXPECT_EQ(lastName(), "Rename \u201CPowerPoint\u201D");
    remove(RuleCategory::createNewFile, 5);
    EXPECT_EQ(lastName(), "Remove \u201CSlides\u201D");
}

TEST_F(StepNamesTest, EachKindOfStepHasItsOwnWords) {
    constexpr auto templates = RuleCategory::createNewFile;
    controller_.set(templates, 0, field::enable, false);
    controller_.set(templates, 0, field::enable, true);
    controller_.set(templates, 0, field::enableMainMenu, true);
    controller_.set(templates, 0, field::enableMainMenu, false);
    controller_.acceptDrop(templates, templates, 0, 3);
    controller_.textEdited("OthersNote", 0, "Careful");
    controller_.add(RuleCategory::commonPath);
    platform_.panels.confirm({"/home/Zoo"});
    controller_.add(RuleCategory::commonPath);
    platform_.panels.confirm({"/home/One", "/home/Two"});
    controller_.reset(RuleCategory::copyFilesTo);
    controller_.selectPath(RuleCategory::copyFilesTo, 0);
    platform_.panels.confirm({"/chosen"});
    for (const bool on : {false, true}) {
        platform_.preferences.userSets("enableAllOfCustomIcon", on);
        controller_.enableAll(RuleCategory::customIcon);
    }
    EXPECT_EQ(platform_.undoHistory.undoNames(),
        (Names{"Turn Off \u201CTXT\u201D", "Turn On \u201CTXT\u201D", "Show \u201CTXT\u201D in Main Menu",
            "Hide \u201CTXT\u201D from Main Menu", "Move \u201CTXT\u201D", "Edit Note of \u201CCut\u201D",
            "Add \u201CZoo\u201D", "Add Several Rules", "Reset List",
            "Choose Folder for \u201CDownloads\u201D", "Disable All", "Enable All"}));
}

TEST_F(StepNamesTest, TheWordsAreTheUsers) {
    platform_.bundle.texts["Remove \u201C%@\u201D"] = "Entfernen von \u201E%@\u201C";
    platform_.bundle.texts["Reset List"] = "Liste zur\u00FCcksetzen";
    remove(RuleCategory::customIcon, 0);
    EXPECT_EQ(lastName(), "Entfernen von \u201EApp\u201C");
    controller_.reset(RuleCategory::customIcon);
    EXPECT_EQ(lastName(), "Liste zur\u00FCcksetzen");
}

TEST_F(StepNamesTest, ARuleWithoutANameIsCalledAfterItsRow) {
    platform_.bundle.texts["row %@"] = "Zeile %@";
    controller_.textEdited("CustomIconName", 1, "");
    remove(RuleCategory::customIcon, 1);
    EXPECT_EQ(lastName(), "Remove \u201CZeile 2\u201D");
}

TEST_F(StepNamesTest, ALongNameIsCutOffBetweenTwoCharacters) {
    std::string forty;
    for (int character = 0; character < 40; ++character) {
        forty += "\u8868";
    }
    for (const auto& name : {forty, forty + "\U0001F5C2\u8868"}) {
        controller_.textEdited("CustomIconName", 1, name);
        controller_.set(RuleCategory::customIcon, 1, field::enable, false);
        EXPECT_EQ(lastName(), "Turn Off \u201C" + forty + (name == forty ? "" : "\u2026") + "\u201D");
        controller_.set(RuleCategory::customIcon, 1, field::enable, true);
    }
}

TEST_F(StepNamesTest, APlaceholderInANameIsPartOfTheName) {
    controller_.textEdited("CustomIconName", 1, "100 %@ %d");
    remove(RuleCategory::customIcon, 1);
    EXPECT_EQ(lastName(), "Remove \u201C100 %@ %d\u201D");
}

TEST_F(StepNamesTest, AStepKeepsItsNameOnTheWayBackAndForth) {
    remove(RuleCategory::createNewFile, 3);
    platform_.undoHistory.undo();
    EXPECT_EQ(platform_.undoHistory.redoNames(), Names{"Remove \u201CWord\u201D"});
    platform_.undoHistory.redo();
    EXPECT_EQ(lastName(), "Remove \u201CWord\u201D");
}

TEST_F(StepNamesTest, WhatIsHeldGoesWhenTheProcessEnds) {
    remove(RuleCategory::createNewFile, 3);
    EXPECT_TRUE(platform_.files.exists(heldFolder));
    controller_.removeHeldFiles();
    EXPECT_FALSE(platform_.files.exists(heldFolder));
}

} // namespace
} // namespace tarnwick::testing
