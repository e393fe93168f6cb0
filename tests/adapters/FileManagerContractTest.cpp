#include "platform/FileManager.h"
#include "tests/adapters/WorkFolder.h"

namespace tarnwick::testing {
namespace {

using Names = std::vector<std::string>;

class FileManagerContract : public Contract<WorkFolder> {
protected:
    [[nodiscard]] std::string at(const std::string& name) { return harness_.at(name); }
    FileManager& manager() { return harness_.files(); }
};

TEST_P(FileManagerContract, FilesAndFoldersExist) {
    EXPECT_TRUE(manager().exists(harness_.path()));
    EXPECT_FALSE(manager().exists(at("a")));
    harness_.write("a", "1");
    EXPECT_TRUE(manager().exists(at("a")));
}

TEST_P(FileManagerContract, AFolderIsMadeWithThoseAboveIt) {
    EXPECT_TRUE(manager().createFolder(at("one/two/three")));
    EXPECT_TRUE(manager().exists(at("one/two")));
    EXPECT_TRUE(manager().createFolder(at("one/two/three")));
}

TEST_P(FileManagerContract, RemovingAFolderTakesItsContents) {
    manager().createFolder(at("one/two"));
    harness_.write("one/two/a", "1");
    EXPECT_TRUE(manager().remove(at("one")));
    EXPECT_FALSE(manager().exists(at("one/two/a")));
    EXPECT_FALSE(manager().exists(at("one")));
}

TEST_P(FileManagerContract, WhatIsNotThereCannotBeRemovedCopiedOrMoved) {
    EXPECT_FALSE(manager().remove(at("a")));
    EXPECT_FALSE(manager().copy(at("a"), at("b")));
    EXPECT_FALSE(manager().move(at("a"), at("b")));
    EXPECT_FALSE(manager().exists(at("b")));
}

TEST_P(FileManagerContract, ACopyLeavesTheOriginal) {
    harness_.write("a", "1");
    EXPECT_TRUE(manager().copy(at("a"), at("b")));
    EXPECT_EQ(harness_.read("a"), "1");
    EXPECT_EQ(harness_.read("b"), "1");
}

TEST_P(FileManagerContract, AMoveTakesTheOriginalAway) {
    harness_.write("a", "1");
    EXPECT_TRUE(manager().move(at("a"), at("b")));
    EXPECT_FALSE(manager().exists(at("a")));
    EXPECT_EQ(harness_.read("b"), "1");
}

TEST_P(FileManagerContract, NothingIsEverOverwritten) {
    harness_.write("a", "1");
    harness_.write("b", "2");
    EXPECT_FALSE(manager().copy(at("a"), at("b")));
    EXPECT_FALSE(manager().move(at("a"), at("b")));
    EXPECT_EQ(harness_.read("a"), "1");
    EXPECT_EQ(harness_.read("b"), "2");
}

TEST_P(FileManagerContract, ARenamedFolderTakesItsContentsAlong) {
    manager().createFolder(at("one/two"));
    harness_.write("one/two/a", "1");
    EXPECT_TRUE(manager().rename(at("one"), at("\u8868")));
    EXPECT_FALSE(manager().exists(at("one")));
    EXPECT_EQ(harness_.read("\u8868/two/a"), "1");
}

TEST_P(FileManagerContract, RenamingNeitherOverwritesNorMakesAnything) {
    harness_.write("a", "1");
    harness_.write("b", "2");
    manager().createFolder(at("empty"));
    EXPECT_FALSE(manager().rename(at("a"), at("b")));
    EXPECT_FALSE(manager().rename(at("one"), at("empty")));
    EXPECT_FALSE(manager().rename(at("one"), at("two")));
    EXPECT_FALSE(manager().rename(at("a"), at("no folder/a")));
    EXPECT_EQ(harness_.read("a"), "1");
    EXPECT_EQ(harness_.read("b"), "2");
    EXPECT_FALSE(manager().exists(at("two")));
}

TEST_P(FileManagerContract, NamesOfAnyScriptWork) {
    const std::string name = "\u8868\u683c \U0001F5C2 e\u0301.txt";
    harness_.write(name, "1");
    EXPECT_TRUE(manager().exists(at(name)));
    EXPECT_TRUE(manager().move(at(name), at("b")));
    EXPECT_EQ(harness_.read("b"), "1");
}

TEST_P(FileManagerContract, AFolderIsNotMadeWhereAFileStandsOrBelowOne) {
    harness_.write("a", "1");
    EXPECT_FALSE(manager().createFolder(at("a")));
    EXPECT_FALSE(manager().createFolder(at("a/b")));
    EXPECT_EQ(harness_.read("a"), "1");
}

TEST_P(FileManagerContract, APackageIsCopiedAndMovedWithItsContents) {
    manager().createFolder(at("a.pages/Data"));
    harness_.write("a.pages/Data/1", "one");
    EXPECT_TRUE(manager().copy(at("a.pages"), at("b.pages")));
    EXPECT_TRUE(manager().move(at("a.pages"), at("c.pages")));
    EXPECT_EQ(harness_.read("b.pages/Data/1"), "one");
    EXPECT_EQ(harness_.read("c.pages/Data/1"), "one");
    EXPECT_EQ(manager().namesIn(harness_.path()), (Names{"b.pages", "c.pages"}));
}

TEST_P(FileManagerContract, NothingIsPutWhereThereIsNoFolder) {
    harness_.write("a", "1");
    EXPECT_FALSE(manager().copy(at("a"), at("none/a")));
    EXPECT_FALSE(manager().move(at("a"), at("none/a")));
    EXPECT_EQ(manager().namesIn(harness_.path()), Names{"a"});
}

TEST_P(FileManagerContract, TheKindOfWhatIsThereIsKnown) {
    harness_.write("a", "1");
    manager().createFolder(at("folder"));
    EXPECT_EQ(manager().kindOf(at("a")), FileKind::file);
    EXPECT_EQ(manager().kindOf(at("folder")), FileKind::folder);
    EXPECT_EQ(manager().kindOf(at("none")), FileKind::missing);
    EXPECT_EQ(manager().kindOf(at("a/b")), FileKind::missing) << "below a file";
    EXPECT_EQ(manager().kindOf(""), FileKind::missing);
}

TEST_P(FileManagerContract, ALinkStandsForWhatItLeadsTo) {
    harness_.write("a", "1");
    manager().createFolder(at("folder"));
    harness_.link("to a", at("a"));
    harness_.link("to folder", at("folder"));
    harness_.link("to nothing", at("none"));
    EXPECT_EQ(manager().kindOf(at("to a")), FileKind::file);
    EXPECT_EQ(manager().kindOf(at("to folder")), FileKind::folder);
    EXPECT_EQ(manager().kindOf(at("to nothing")), FileKind::missing);
    EXPECT_TRUE(manager().exists(at("to a")));
    EXPECT_FALSE(manager().exists(at("to nothing")));
    EXPECT_TRUE(manager().remove(at("to a")));
    EXPECT_TRUE(manager().exists(at("a")));
}

TEST_P(FileManagerContract, NamesAreSortedAndThoseOfTheFolderAlone) {
    manager().createFolder(at("b/inner"));
    harness_.write("b/inner/deep", "1");
    harness_.write("c", "1");
    harness_.write(".a", "1");
    harness_.link("d", at("none"));
    EXPECT_EQ(manager().namesIn(harness_.path()), (Names{".a", "b", "c", "d"}));
    EXPECT_EQ(manager().namesIn(at("c")), Names());
    EXPECT_EQ(manager().namesIn(at("none")), Names());
}

TARNWICK_BOTH_IMPLEMENTATIONS(FileManagerContract);

} // namespace
} // namespace tarnwick::testing
