#include "tests/support/EditingFixture.h"

namespace tarnwick::testing {
namespace {

class ResetRulesTest : public EditingFixture {
protected:
    void SetUp() override { launch(); }
};

TEST_F(ResetRulesTest, ResettingOthersRebuildsReloadsDisablesTheRemoveButtonAndPublishes) {
    tables_.table(RuleCategory::others).selected = 3;
    tables_.table(RuleCategory::others).canRemove = true;
    editing_.resetting.reset(RuleCategory::others);
    EXPECT_EQ(platform_.log.lines(),
        (std::vector<std::string>{"local set arrOfOthers", "local synchronise", "reload others",
            "disable remove others", "local set enableAllOfOthers",
            "shared open H7Q2ZK5RX9.org.halvane.Tarnwick", "shared set arrOfOthers", "shared synchronise"}));
    EXPECT_FALSE(tables_.table(RuleCategory::others).canRemove);
}

TEST_F(ResetRulesTest, ResettingTheTemplatesPublishesThemWholeLaysOutTheirFolderAndPublishesTheEnabledOnes) {
    editing_.resetting.reset(RuleCategory::createNewFile);
    std::vector<std::string> others;
    for (const auto& line : platform_.log.lines()) {
        if (line.rfind("copy ", 0) != 0) {
            others.push_back(line);
        }
    }
    EXPECT_EQ(
        others, (std::vector<std::string>{"local set pendingTemplateFiles", "local set arrOfCreateNewFile",
                    "local synchronise", "shared open H7Q2ZK5RX9.org.halvane.Tarnwick",
                    "shared set arrOfCreateNewFile", "shared synchronise",
                    "create folder /tmp/org.halvane.Tarnwick.undo-100",
                    "move /container/Templates/CreateNewFile -> /tmp/org.halvane.Tarnwick.undo-100/1",
                    "create folder /container/Templates/CreateNewFile", "local remove pendingTemplateFiles",
                    // These files were the factory's before.
                    "remove /tmp/org.halvane.Tarnwick.undo-100/1", "reload createNewFile",
                    "disable remove createNewFile", "local set enableAllOfCreateNewFiles",
                    "local set enableAllOfCreateNewFiles", "shared open H7Q2ZK5RX9.org.halvane.Tarnwick",
                    "shared set arrOfCreateNewFile", "shared synchronise"}));
    EXPECT_EQ(platform_.log.linesWith("copy ").size(), 30U);
}

TEST_F(ResetRulesTest, ResettingOthersDiscardsAddedItemsAndEditsAndRestoresRemovedOnes) {
    tables_.table(RuleCategory::others).selected = 0;
    editing_.removing.remove(RuleCategory::others);
    editing_.adding.add(RuleCategory::others);
    platform_.panels.confirm({"/x/Safari.png"});
    editing_.textEditing.endEditing("OthersDisplayName", 0, "Mine");
    platform_.preferences.userSets("enableAllOfOthers", false);
    editing_.toggling.enableAll(RuleCategory::others);
    editing_.resetting.reset(RuleCategory::others);
    EXPECT_EQ(rows(RuleCategory::others), 18);
    EXPECT_EQ(texts(localList(RuleCategory::others), "Action").front(), "Cut");
    EXPECT_EQ(sharedList(RuleCategory::others).size(), 18U);
}

TEST_F(ResetRulesTest, ResettingTheTemplatesDeletesAddedFilesAndPublishesTheNineEnabledOnes) {
    platform_.files.files["/container/Templates/CreateNewFile/Mine.txt"] = "mine";
    editing_.resetting.reset(RuleCategory::createNewFile);
    EXPECT_FALSE(platform_.files.exists("/container/Templates/CreateNewFile/Mine.txt"));
    EXPECT_EQ(platform_.files.namesIn("/container/Templates/CreateNewFile").size(), 30U);
    EXPECT_EQ(localList(RuleCategory::createNewFile).size(), 15U);
    EXPECT_EQ(sharedList(RuleCategory::createNewFile).size(), 9U);
}

TEST_F(ResetRulesTest, ResettingTheTemplatesAgainIsNoStepUnlessAFileIsAnother) {
    editing_.resetting.reset(RuleCategory::createNewFile);
    const auto steps = platform_.undoHistory.undoCount();
    const auto files = platform_.files.files;
    editing_.resetting.reset(RuleCategory::createNewFile);
    EXPECT_EQ(platform_.undoHistory.undoCount(), steps);
    EXPECT_EQ(platform_.files.files, files);
    platform_.files.files["/container/Templates/CreateNewFile/Word.docx"] = "mine";
    editing_.resetting.reset(RuleCategory::createNewFile);
    EXPECT_EQ(platform_.undoHistory.undoCount(), steps + 1);
    platform_.undoHistory.undo();
    EXPECT_EQ(platform_.files.files["/container/Templates/CreateNewFile/Word.docx"], "mine");
}

TEST_F(ResetRulesTest, ResettingTheTargetsGivesTheFourFoldersOfTheHome) {
    editing_.resetting.reset(RuleCategory::copyFilesTo);
    EXPECT_EQ(texts(localList(RuleCategory::copyFilesTo), "realPath"),
        (std::vector<std::string>{
            "/Users/anna/Downloads", "/Users/anna/Pictures", "/Users/anna/Music", "/Users/anna/Movies"}));
    EXPECT_EQ(sharedList(RuleCategory::copyFilesTo).size(), 4U);
}

TEST_F(ResetRulesTest, ResettingTheIconsGivesTheTwentyAgain) {
    tables_.table(RuleCategory::customIcon).selected = 0;
    editing_.removing.remove(RuleCategory::customIcon);
    editing_.resetting.reset(RuleCategory::customIcon);
    EXPECT_EQ(localList(RuleCategory::customIcon).size(), 20U);
    EXPECT_EQ(sharedList(RuleCategory::customIcon).size(), 20U);
}

TEST_F(ResetRulesTest, TheOtherListsAndSwitchesAreUntouched) {
    auto before = platform_.preferences.local;
    editing_.resetting.reset(RuleCategory::copyFilesTo);
    auto after = platform_.preferences.local;
    before.erase("arrOfCopyFilesTo");
    after.erase("arrOfCopyFilesTo");
    EXPECT_EQ(after, before);
}

TEST_F(ResetRulesTest, AResetWhoseImageIsMissingKeepsTheListAsItWas) {
    const auto before = localList(RuleCategory::customIcon);
    platform_.images.missingNames.insert("Word");
    editing_.resetting.reset(RuleCategory::customIcon);
    EXPECT_EQ(localList(RuleCategory::customIcon), before);
    EXPECT_EQ(platform_.systemLog.lines.size(), 1U);
}

} // namespace
} // namespace tarnwick::testing
