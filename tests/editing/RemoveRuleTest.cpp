#include "tests/support/SettingsFixture.h"

namespace tarnwick::testing {
namespace {

class RemoveRuleTest : public SettingsFixture {
protected:
    void SetUp() override {
        std::vector<RuleRecord> folders;
        for (const auto* name : {"A", "B", "C", "D", "E"}) {
            folders.push_back(makeRecord({{"enable", 1}, {"realPath", name}, {"displayName", name}}));
        }
        storeList(RuleCategory::commonPath, folders);
        launch();
    }
    [[nodiscard]] std::vector<std::string> names(RuleCategory category) const {
        return texts(localList(category), "displayName");
    }
    void select(RuleCategory category, long row) { window_.table(category).selected = row; }
    /// Leaves only these rows of the Others list and reloads the window.
    void launchWithOthers(const std::vector<std::string>& actions) {
        std::vector<RuleRecord> records;
        records.reserve(actions.size());
        for (const auto& action : actions) {
            records.push_back(makeRecord({{"enable", 1}, {"displayName", action}, {"Action", action}}));
        }
        storeList(RuleCategory::others, records);
        launch();
    }
};

TEST_F(RemoveRuleTest, RemovingRowThreeOfFiveLeavesFourAndSelectsRowTwo) {
    select(RuleCategory::commonPath, 3);
    controller_.removeCommondPathRule();
    EXPECT_EQ(names(RuleCategory::commonPath), (std::vector<std::string>{"A", "B", "C", "E"}));
    EXPECT_EQ(window_.table(RuleCategory::commonPath).selected, 2);
    EXPECT_EQ(sharedList(RuleCategory::commonPath).size(), 4U);
}

TEST_F(RemoveRuleTest, RemovingTheFirstRowSelectsTheNewFirstRow) {
    select(RuleCategory::commonPath, 0);
    controller_.removeCommondPathRule();
    EXPECT_EQ(names(RuleCategory::commonPath).front(), "B");
    EXPECT_EQ(window_.table(RuleCategory::commonPath).selected, 0);
}

TEST_F(RemoveRuleTest, RemovingTheOnlyRowDisablesTheButtonAndPublishesAnEmptyList) {
    storeList(RuleCategory::copyFilesTo, {makeRecord({{"enable", 1}, {"realPath", "/a"}})});
    launch();
    select(RuleCategory::copyFilesTo, 0);
    window_.removeButton(RuleCategory::copyFilesTo).enabled = true;
    controller_.removeCopyFilesToRule();
    EXPECT_TRUE(localList(RuleCategory::copyFilesTo).empty());
    EXPECT_TRUE(sharedList(RuleCategory::copyFilesTo).empty());
    EXPECT_FALSE(window_.removeButton(RuleCategory::copyFilesTo).enabled);
}

TEST_F(RemoveRuleTest, WithoutASelectionAndWithRowsNothingHappensAtAll) {
    select(RuleCategory::commonPath, -1);
    controller_.removeCommondPathRule();
    EXPECT_TRUE(platform_.log.lines().empty());
}

TEST_F(RemoveRuleTest, WithoutASelectionAndWithoutRowsTheButtonIsDisabledAndTheListPublished) {
    select(RuleCategory::copyFilesTo, -1);
    controller_.removeCopyFilesToRule();
    EXPECT_EQ(platform_.log.lines(),
        (std::vector<std::string>{"disable remove copyFilesTo", "shared open H7Q2ZK5RX9.org.halvane.Tarnwick",
            "shared set arrOfCopyFilesTo", "shared synchronise"}));
}

TEST_F(RemoveRuleTest, ATemplateIsStoredAwayReloadedItsFileDeletedTheNeighbourSelectedAndTheListPublished) {
    select(RuleCategory::createNewFile, 3);
    controller_.removeCreateNewFileRule();
    EXPECT_EQ(platform_.log.lines(),
        (std::vector<std::string>{"local set pendingTemplateFiles", "local set arrOfCreateNewFile",
            "local synchronise", "reload createNewFile",
            "remove /container/Templates/CreateNewFile/Word.docx", "local remove pendingTemplateFiles",
            "select createNewFile 2", "local set enableAllOfCreateNewFiles",
            "local set enableAllOfCreateNewFiles", "shared open H7Q2ZK5RX9.org.halvane.Tarnwick",
            "shared set arrOfCreateNewFile", "shared synchronise"}));
    EXPECT_FALSE(platform_.files.exists("/container/Templates/CreateNewFile/Word.docx"));
}

TEST_F(RemoveRuleTest, ATemplateFileThatCannotBeDeletedIsIgnored) {
    platform_.files.failing.insert("/container/Templates/CreateNewFile/TXT.txt");
    select(RuleCategory::createNewFile, 0);
    controller_.removeCreateNewFileRule();
    EXPECT_EQ(names(RuleCategory::createNewFile).size(), 14U);
}

TEST_F(RemoveRuleTest, ATemplateWithoutExtensionIsLookedForWithABareDotSoItsFileStays) {
    platform_.files.files["/container/Templates/CreateNewFile/Makefile"] = "all:";
    storeList(RuleCategory::createNewFile,
        {makeRecord({{"enable", "1"}, {"displayName", "Makefile"}, {"extension", ""}, {"modified", "1"}})});
    launch();
    select(RuleCategory::createNewFile, 0);
    controller_.removeCreateNewFileRule();
    EXPECT_TRUE(platform_.log.holds("remove /container/Templates/CreateNewFile/Makefile."));
    EXPECT_TRUE(platform_.files.exists("/container/Templates/CreateNewFile/Makefile"));
}

TEST_F(RemoveRuleTest, ANameThatLeadsOutOfTheTemplateFolderDeletesNothing) {
    platform_.files.files["/container/Templates/precious.txt"] = "keep";
    storeList(RuleCategory::createNewFile, {makeRecord({{"enable", "1"}, {"displayName", "../precious"},
                                               {"extension", "txt"}, {"modified", "1"}})});
    launch();
    select(RuleCategory::createNewFile, 0);
    controller_.removeCreateNewFileRule();
    EXPECT_TRUE(platform_.files.exists("/container/Templates/precious.txt"));
    EXPECT_EQ(controller_.numberOfRows(RuleCategory::createNewFile), 0);
}

TEST_F(RemoveRuleTest, ANameThatMakesADotNameWithAnEmptyExtensionDeletesNoFolder) {
    storeList(RuleCategory::createNewFile,
        {makeRecord({{"enable", "1"}, {"displayName", ""}, {"extension", ""}}),
            makeRecord({{"enable", "1"}, {"displayName", "."}, {"extension", ""}})});
    launch();
    for (int row = 0; row < 2; ++row) {
        select(RuleCategory::createNewFile, 0);
        controller_.removeCreateNewFileRule();
    }
    EXPECT_TRUE(platform_.log.linesWith("remove ").empty());
    EXPECT_EQ(controller_.numberOfRows(RuleCategory::createNewFile), 0);
}

TEST_F(RemoveRuleTest, WithoutAGroupContainerTheRecordStillGoesAndNoFileIsDeleted) {
    platform_.folders.container.reset();
    select(RuleCategory::createNewFile, 0);
    controller_.removeCreateNewFileRule();
    EXPECT_EQ(names(RuleCategory::createNewFile).size(), 14U);
    EXPECT_TRUE(platform_.log.linesWith("remove ").empty());
}

TEST_F(RemoveRuleTest, ARenameThatCouldNotMoveItsFileLeavesTheOldFileBehindOnRemoval) {
    platform_.files.failing.insert("/container/Templates/CreateNewFile/Memo.txt");
    EXPECT_TRUE(controller_.controlTextShouldEndEditing("NewFileDisplayName", 0, "Memo"));
    select(RuleCategory::createNewFile, 0);
    controller_.removeCreateNewFileRule();
    EXPECT_TRUE(platform_.log.holds("remove /container/Templates/CreateNewFile/Memo.txt"));
    EXPECT_TRUE(platform_.files.exists("/container/Templates/CreateNewFile/TXT.txt"));
}

TEST_F(RemoveRuleTest, OtherCategoriesTouchNoFile) {
    const auto before = platform_.files.files;
    select(RuleCategory::commonPath, 1);
    controller_.removeCommondPathRule();
    select(RuleCategory::customIcon, 1);
    controller_.removeCustomIconRule();
    select(RuleCategory::others, 2);
    controller_.removeOthersRule();
    EXPECT_EQ(platform_.files.files, before);
    EXPECT_EQ(controller_.numberOfRows(RuleCategory::customIcon), 19);
    EXPECT_EQ(controller_.numberOfRows(RuleCategory::others), 17);
}

TEST_F(RemoveRuleTest, RemovingTheRowBelowAProtectedOneSelectsThatAndDisablesTheButton) {
    select(RuleCategory::others, 2); // below "Pin、Annotation by Snapfin"
    window_.removeButton(RuleCategory::others).enabled = true;
    controller_.removeOthersRule();
    EXPECT_EQ(window_.table(RuleCategory::others).selected, 1);
    EXPECT_FALSE(window_.removeButton(RuleCategory::others).enabled);
    EXPECT_EQ(platform_.log.lines().back(), "disable remove others");
}

TEST_F(RemoveRuleTest, RemovingTheFirstRowAboveATranslationSelectsItAndDisablesTheButton) {
    launchWithOthers(
        {"Cut", "Translate by Google", "Open in VSCode", "Open in Sublime Text", "Open in Emacs"});
    select(RuleCategory::others, 0);
    window_.removeButton(RuleCategory::others).enabled = true;
    controller_.removeOthersRule();
    EXPECT_EQ(window_.table(RuleCategory::others).selected, 0);
    EXPECT_FALSE(window_.removeButton(RuleCategory::others).enabled);
}

TEST_F(RemoveRuleTest, ANeighbourSpelledWithAnAsciiCommaIsNotProtected) {
    launchWithOthers(
        {"Pin,Annotation by Snapfin", "Cut", "Open in VSCode", "Open in Sublime Text", "Open in Emacs"});
    select(RuleCategory::others, 1);
    window_.removeButton(RuleCategory::others).enabled = true;
    controller_.removeOthersRule();
    EXPECT_EQ(window_.table(RuleCategory::others).selected, 0);
    EXPECT_TRUE(window_.removeButton(RuleCategory::others).enabled);
}

TEST_F(RemoveRuleTest, RemovingNextToAnOrdinaryRowKeepsTheButtonEnabled) {
    select(RuleCategory::others, 4);
    window_.removeButton(RuleCategory::others).enabled = true;
    controller_.removeOthersRule();
    EXPECT_TRUE(window_.removeButton(RuleCategory::others).enabled);
}

TEST_F(RemoveRuleTest, AfterTheOnlyOthersRowIsRemovedTheButtonStaysDisabled) {
    launchWithOthers({"Open in VSCode", "Open in Sublime Text", "Open in Emacs"});
    for (int row = 0; row < 3; ++row) {
        select(RuleCategory::others, 0);
        window_.removeButton(RuleCategory::others).enabled = true;
        controller_.removeOthersRule();
    }
    EXPECT_EQ(controller_.numberOfRows(RuleCategory::others), 0);
    EXPECT_FALSE(window_.removeButton(RuleCategory::others).enabled);
    EXPECT_TRUE(sharedList(RuleCategory::others).empty());
}

TEST_F(RemoveRuleTest, TheActionItselfDoesNotTestTheRowThatItRemoves) {
    select(RuleCategory::others, 15);
    controller_.removeOthersRule();
    EXPECT_EQ(controller_.numberOfRows(RuleCategory::others), 17);
}

} // namespace
} // namespace tarnwick::testing
