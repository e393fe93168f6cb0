#include "tests/editing/UndoFixture.h"
#include "tests/support/Categories.h"

namespace tarnwick::testing {
namespace {

using Names = std::vector<std::string>;

class UndoFilesTest : public UndoFixture {
protected:
    void rename(long row, std::string_view name) {
        editing_.textEditing.endEditing("NewFileDisplayName", row, name);
    }
    [[nodiscard]] bool exists(const std::string& path) const { return platform_.files.exists(path); }
};

TEST_F(UndoFilesTest, WhatIsTakenAwayWaitsInAFolderOfTheProcessUntilItEnds) {
    EXPECT_FALSE(exists(heldFolder));
    remove(templates, 3);
    EXPECT_EQ(
        platform_.files.files.at(heldFolder + "/1/Contents/index"), "content of D.pages/Contents/index");
    preferences_.held.removeAll();
    EXPECT_FALSE(exists(heldFolder));
}

TEST_F(UndoFilesTest, NothingIsMadeAndRemovedWhereNothingWasTakenAway) {
    rename(0, "New");
    preferences_.held.removeAll();
    EXPECT_TRUE(platform_.log.linesWith("create folder").empty());
    EXPECT_TRUE(platform_.log.linesWith("remove ").empty());
}

TEST_F(UndoFilesTest, AnEditOfTheFileSinceIsWhatComesBack) {
    remove(templates, 0);
    undo();
    platform_.files.files[templateFolder + "/A.x"] = "edited";
    redo();
    EXPECT_EQ(contentOf("A.x"), "(none)");
    undo();
    EXPECT_EQ(contentOf("A.x"), "edited");
}

TEST_F(UndoFilesTest, AFileThatCouldNotBeMovedAtARenameIsNotMovedBack) {
    platform_.files.files[templateFolder + "/Taken.x"] = "somebody's";
    rename(0, "Taken");
    undo();
    EXPECT_EQ(contentOf("A.x"), "content of A.x");
    EXPECT_EQ(contentOf("Taken.x"), "somebody's");
    EXPECT_EQ(list(templates)[0].text("displayName"), "A");
}

TEST_F(UndoFilesTest, NothingIsOverwrittenOnTheWayBackOrForth) {
    remove(templates, 0);
    platform_.files.files[templateFolder + "/A.x"] = "somebody's";
    undo();
    EXPECT_EQ(contentOf("A.x"), "somebody's");
    EXPECT_EQ(list(templates).size(), 4U);
    redo();
    EXPECT_EQ(contentOf("A.x"), "somebody's");
    EXPECT_EQ(list(templates).size(), 3U);
}

TEST_F(UndoFilesTest, ARenameIsTakenBackWithoutOverwriting) {
    rename(0, "New");
    platform_.files.files[templateFolder + "/A.x"] = "somebody's";
    undo();
    EXPECT_EQ(contentOf("A.x"), "somebody's");
    EXPECT_EQ(contentOf("New.x"), "content of A.x");
}

TEST_F(UndoFilesTest, ARemovalWithoutAFileToHoldIsAStepEvenOnAFullDisk) {
    platform_.files.files.erase(templateFolder + "/A.x");
    platform_.files.failing.insert(heldFolder);
    remove(templates, 0);
    EXPECT_EQ(steps(), Names{"remove A"});
}

TEST_F(UndoFilesTest, FilesComeBackFromAnotherVolumeToo) {
    platform_.files.volumes.insert("/tmp");
    const auto before = everything();
    remove(templates, 3);
    editing_.resetting.reset(templates);
    const auto after = everything();
    for (int time = 0; time < 2; ++time) {
        undo();
        undo();
        EXPECT_TRUE(everything() == before);
        EXPECT_EQ(platform_.files.namesIn(heldFolder).size(), 1U);
        redo();
        redo();
        EXPECT_TRUE(everything() == after);
        EXPECT_EQ(platform_.files.namesIn(heldFolder).size(), 2U);
    }
}

TEST_F(UndoFilesTest, AFolderThatWasNotThereIsNotThereAgain) {
    platform_.files.remove(templateFolder);
    editing_.resetting.reset(templates);
    undo();
    EXPECT_FALSE(exists(templateFolder));
    redo();
    EXPECT_EQ(platform_.files.namesIn(templateFolder).size(), 30U);
}

TEST_F(UndoFilesTest, AFolderThatCannotBePutBackIsThereAllTheSameForTheNextStart) {
    editing_.resetting.reset(templates);
    platform_.files.failing.insert(templateFolder);
    undo();
    platform_.files.failing.clear();
    EXPECT_EQ(list(templates).size(), 4U);
    EXPECT_TRUE(platform_.log.holds("create folder " + templateFolder));
    redo();
    EXPECT_EQ(platform_.files.namesIn(templateFolder).size(), 30U);
}

TEST_F(UndoFilesTest, WithoutAGroupContainerTheListAloneComesBack) {
    platform_.folders.container.reset();
    const auto before = list(templates).records();
    remove(templates, 0);
    editing_.resetting.reset(templates);
    undo();
    undo();
    EXPECT_TRUE(list(templates).records() == before);
    EXPECT_FALSE(exists(heldFolder));
}

TEST_F(UndoFilesTest, AStartRemovesWhatProcessesThatAreGoneHaveHeldAndNothingElse) {
    platform_.process.others = {7};
    const std::string prefix = "/tmp/org.halvane.Tarnwick.undo-";
    for (const auto* name : {"7", "8", "100", "", "x", "9x", "-9"}) {
        platform_.files.createFolder(prefix + name);
        platform_.files.files[prefix + name + "/1"] = "held";
    }
    launch();
    for (const auto* name : {"7", "", "x", "9x", "-9"}) {
        EXPECT_TRUE(exists(prefix + name + "/1")) << name;
    }
    EXPECT_FALSE(exists(prefix + "8"));
    EXPECT_FALSE(exists(prefix + "100"));
}

TEST_F(UndoFilesTest, ANoteLeadsNowhereButToHeldFiles) {
    platform_.files.files["/home/secret"] = "secret";
    platform_.files.files.erase(templateFolder + "/A.x");
    for (const auto* place : {"/home/secret", "/tmp/org.halvane.Tarnwick.undo-8/../../home/secret",
             "/tmp/org.halvane.Tarnwick.undo-x/1", "1", ""}) {
        platform_.preferences.local.insert_or_assign(
            "pendingTemplateFiles", PlistArray{"put back", "A.x", place});
        launch();
        EXPECT_EQ(contentOf("A.x"), "(none)") << place;
        EXPECT_EQ(platform_.preferences.local.count("pendingTemplateFiles"), 0U);
    }
}

} // namespace
} // namespace tarnwick::testing
