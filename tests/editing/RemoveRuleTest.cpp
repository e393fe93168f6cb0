#include "tests/support/EditingFixture.h"

namespace tarnwick::testing {
namespace {

class RemoveRuleTest : public EditingFixture {
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
    void select(RuleCategory category, long row) { tables_.table(category).selected = row; }
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
    editing_.removing.remove(RuleCategory::commonPath);
    EXPECT_EQ(names(RuleCategory::commonPath), (std::vector<std::string>{"A", "B", "C", "E"}));
    EXPECT_EQ(tables_.table(RuleCategory::commonPath).selected, 2);
    EXPECT_EQ(sharedList(RuleCategory::commonPath).size(), 4U);
}

TEST_F(RemoveRuleTest, RemovingTheFirstRowSelectsTheNewFirstRow) {
    select(RuleCategory::commonPath, 0);
    editing_.removing.remove(RuleCategory::commonPath);
    EXPECT_EQ(names(RuleCategory::commonPath).front(), "B");
    EXPECT_EQ(tables_.table(RuleCategory::commonPath).selected, 0);
}

TEST_F(RemoveRuleTest, RemovingTheOnlyRowDisablesTheButtonAndPublishesAnEmptyList) {
    storeList(RuleCategory::copyFilesTo, {makeRecord({{"enable", 1}, {"realPath", "/a"}})});
    launch();
    select(RuleCategory::copyFilesTo, 0);
    tables_.table(RuleCategory::copyFilesTo).canRemove = true;
    editing_.removing.remove(RuleCategory::copyFilesTo);
    EXPECT_TRUE(localList(RuleCategory::copyFilesTo).empty());
    EXPECT_TRUE(sharedList(RuleCategory::copyFilesTo).empty());
    EXPECT_FALSE(tables_.table(RuleCategory::copyFilesTo).canRemove);
}

TEST_F(RemoveRuleTest, WithoutASelectionAndWithRowsNothingHappensAtAll) {
    select(RuleCategory::commonPath, -1);
    editing_.removing.remove(RuleCategory::commonPath);
    EXPECT_TRUE(platform_.log.lines().empty());
}

TEST_F(RemoveRuleTest, WithoutASelectionAndWithoutRowsTheButtonIsDisabledAndTheListPublished) {
    select(RuleCategory::copyFilesTo, -1);
    editing_.removing.remove(RuleCategory::copyFilesTo);
    EXPECT_EQ(platform_.log.lines(),
        (std::vector<std::string>{"disable remove copyFilesTo", "shared open H7Q2ZK5RX9.org.halvane.Tarnwick",
            "shared set arrOfCopyFilesTo", "shared synchronise"}));
}

TEST_F(RemoveRuleTest, ATemplateIsStoredAwayReloadedItsFileDeletedTheNeighbourSelectedAndTheListPublished) {
    select(RuleCategory::createNewFile, 3);
    editing_.removing.remove(RuleCategory::createNewFile);
    EXPECT_EQ(platform_.log.lines(),
        (std::vector<std::string>{"local set pendingTemplateFiles", "local set arrOfCreateNewFile",
            "local synchronise", "reload createNewFile", "create folder /tmp/org.halvane.Tarnwick.undo-100",
            "move /container/Templates/CreateNewFile/Word.docx -> /tmp/org.halvane.Tarnwick.undo-100/1",
            "local remove pendingTemplateFiles", "select createNewFile 2",
            "local set enableAllOfCreateNewFiles", "local set enableAllOfCreateNewFiles",
            "shared open H7Q2ZK5RX9.org.halvane.Tarnwick", "shared set arrOfCreateNewFile",
            "shared synchronise"}));
    EXPECT_FALSE(platform_.files.exists("/container/Templates/CreateNewFile/Word.docx"));
}

TEST_F(RemoveRuleTest, ATemplateFileThatCannotBeDeletedIsIgnored) {
    platform_.files.failing.insert("/container/Templates/CreateNewFile/TXT.txt");
    select(RuleCategory::createNewFile, 0);
    editing_.removing.remove(RuleCategory::createNewFile);
    EXPECT_EQ(names(RuleCategory::createNewFile).size(), 14U);
}

TEST_F(RemoveRuleTest, ATemplateWithoutExtensionIsLookedForWithABareDotSoItsFileStays) {
    platform_.files.files["/container/Templates/CreateNewFile/Makefile"] = "all:";
    storeList(RuleCategory::createNewFile,
        {makeRecord({{"enable", "1"}, {"displayName", "Makefile"}, {"extension", ""}, {"modified", "1"}})});
    launch();
    select(RuleCategory::createNewFile, 0);
    editing_.removing.remove(RuleCategory::createNewFile);
    EXPECT_TRUE(platform_.log.holds("remove /container/Templates/CreateNewFile/Makefile."));
    EXPECT_TRUE(platform_.files.exists("/container/Templates/CreateNewFile/Makefile"));
}

TEST_F(RemoveRuleTest, ANameThatLeadsOutOfTheTemplateFolderDeletesNothing) {
    platform_.files.files["/container/Templates/precious.txt"] = "keep";
    storeList(RuleCategory::createNewFile, {makeRecord({{"enable", "1"}, {"displayName", "../precious"},
                                               {"extension", "txt"}, {"modified", "1"}})});
    launch();
    select(RuleCategory::createNewFile, 0);
    editing_.removing.remove(RuleCategory::createNewFile);
    EXPECT_TRUE(platform_.files.exists("/container/Templates/precious.txt"));
    EXPECT_EQ(rows(RuleCategory::createNewFile), 0);
}

TEST_F(RemoveRuleTest, ANameThatMakesADotNameWithAnEmptyExtensionDeletesNoFolder) {
    storeList(RuleCategory::createNewFile,
        {makeRecord({{"enable", "1"}, {"displayName", ""}, {"extension", ""}}),
            makeRecord({{"enable", "1"}, {"displayName", "."}, {"extension", ""}})});
    launch();
    for (int row = 0; row < 2; ++row) {
        select(RuleCategory::createNewFile, 0);
        editing_.removing.remove(RuleCategory::createNewFile);
    }
    EXPECT_TRUE(platform_.log.linesWith("remove ").empty());
    EXPECT_EQ(rows(RuleCategory::createNewFile), 0);
}

TEST_F(RemoveRuleTest, WithoutAGroupContainerTheRecordStillGoesAndNoFileIsDeleted) {
    platform_.folders.container.reset();
    select(RuleCategory::createNewFile, 0);
    editing_.removing.remove(RuleCategory::createNewFile);
    EXPECT_EQ(names(RuleCategory::createNewFile).size(), 14U);
    EXPECT_TRUE(platform_.log.linesWith("remove ").empty());
}

TEST_F(RemoveRuleTest, ARenameThatCouldNotMoveItsFileLeavesTheOldFileBehindOnRemoval) {
    platform_.files.failing.insert("/container/Templates/CreateNewFile/Memo.txt");
    editing_.textEditing.endEditing("NewFileDisplayName", 0, "Memo");
    select(RuleCategory::createNewFile, 0);
    editing_.removing.remove(RuleCategory::createNewFile);
    EXPECT_TRUE(platform_.log.holds("remove /container/Templates/CreateNewFile/Memo.txt"));
    EXPECT_TRUE(platform_.files.exists("/container/Templates/CreateNewFile/TXT.txt"));
}

TEST_F(RemoveRuleTest, OtherCategoriesTouchNoFile) {
    const auto before = platform_.files.files;
    select(RuleCategory::commonPath, 1);
    editing_.removing.remove(RuleCategory::commonPath);
    select(RuleCategory::customIcon, 1);
    editing_.removing.remove(RuleCategory::customIcon);
    select(RuleCategory::others, 2);
    editing_.removing.remove(RuleCategory::others);
    EXPECT_EQ(platform_.files.files, before);
    EXPECT_EQ(rows(RuleCategory::customIcon), 19);
    EXPECT_EQ(rows(RuleCategory::others), 17);
}

TEST_F(RemoveRuleTest, RemovingTheRowBelowAProtectedOneSelectsThatAndDisablesTheButton) {
    select(RuleCategory::others, 2); // below "Pin、Annotation by Snapfin"
    tables_.table(RuleCategory::others).canRemove = true;
    editing_.removing.remove(RuleCategory::others);
    EXPECT_EQ(tables_.table(RuleCategory::others).selected, 1);
    EXPECT_FALSE(tables_.table(RuleCategory::others).canRemove);
    EXPECT_EQ(platform_.log.lines().back(), "disable remove others");
}

TEST_F(RemoveRuleTest, RemovingTheFirstRowAboveATranslationSelectsItAndDisablesTheButton) {
    launchWithOthers(
        {"Cut", "Translate by Google", "Open in VSCode", "Open in Sublime Text", "Open in Emacs"});
    select(RuleCategory::others, 0);
    tables_.table(RuleCategory::others).canRemove = true;
    editing_.removing.remove(RuleCategory::others);
    EXPECT_EQ(tables_.table(RuleCategory::others).selected, 0);
    EXPECT_FALSE(tables_.table(RuleCategory::others).canRemove);
}

TEST_F(RemoveRuleTest, ANeighbourSpelledWithAnAsciiCommaIsNotProtected) {
    launchWithOthers(
        {"Pin,Annotation by Snapfin", "Cut", "Open in VSCode", "Open in Sublime Text", "Open in Emacs"});
    select(RuleCategory::others, 1);
    tables_.table(RuleCategory::others).canRemove = true;
    editing_.removing.remove(RuleCategory::others);
    EXPECT_EQ(tables_.table(RuleCategory::others).selected, 0);
    EXPECT_TRUE(tables_.table(RuleCategory::others).canRemove);
}

TEST_F(RemoveRuleTest, RemovingNextToAnOrdinaryRowKeepsTheButtonEnabled) {
    select(RuleCategory::others, 4);
    tables_.table(RuleCategory::others).canRemove = true;
    editing_.removing.remove(RuleCategory::others);
    EXPECT_TRUE(tables_.table(RuleCategory::others).canRemove);
}

TEST_F(RemoveRuleTest, AfterTheOnlyOthersRowIsRemovedTheButtonStaysDisabled) {
    launchWithOthers({"Open in VSCode", "Open in Sublime Text", "Open in Emacs"});
    for (int row = 0; row < 3; ++row) {
        select(RuleCategory::others, 0);
        tables_.table(RuleCategory::others).canRemove = true;
        editing_.removing.remove(RuleCategory::others);
    }
    EXPECT_EQ(rows(RuleCategory::others), 0);
    EXPECT_FALSE(tables_.table(RuleCategory::others).canRemove);
    EXPECT_TRUE(sharedList(RuleCategory::others).empty());
}

TEST_F(RemoveRuleTest, TheActionItselfDoesNotTestTheRowThatItRemoves) {
    select(RuleCategory::others, 15);
    editing_.removing.remove(RuleCategory::others);
    EXPECT_EQ(rows(RuleCategory::others), 17);
}

} // namespace
} // namespace tarnwick::testing
