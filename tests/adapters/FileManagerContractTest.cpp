#include "Pool.h"

#include "adapters/foundation/Adapters.h"
#include "platform/FileManager.h"
#include "tests/support/InMemoryFiles.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <memory>
#include <ostream>
#include <sys/stat.h>

namespace tarnwick::testing {
namespace {

/// One implementation of the port with a folder to work in.
struct Files {
    virtual ~Files() = default;
    virtual FileManager& manager() = 0;
    virtual std::string folder() = 0;
    virtual void write(const std::string& path, const std::string& content) = 0;
    virtual std::string read(const std::string& path) = 0;
};

struct InMemory final : Files {
    CallLog log;
    InMemoryFiles files{log};

    InMemory() { files.folders.insert("/work"); }
    FileManager& manager() override { return files; }
    std::string folder() override { return "/work"; }
    void write(const std::string& path, const std::string& content) override { files.files[path] = content; }
    std::string read(const std::string& path) override { return files.files.at(path); }
};

struct OnDisk final : Files {
    std::unique_ptr<FileManager> files = makeFileManager();
    std::string root = std::string(std::getenv("TARNWICK_USER_FOLDER")) + "/contract-XXXXXX";

    OnDisk() { EXPECT_NE(mkdtemp(root.data()), nullptr); }
    ~OnDisk() override { files->remove(root); }
    FileManager& manager() override { return *files; }
    std::string folder() override { return root; }
    void write(const std::string& path, const std::string& content) override {
        std::ofstream(path) << content;
    }
    std::string read(const std::string& path) override {
        std::ifstream stream(path);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
};

struct Implementation {
    const char* name;
    std::unique_ptr<Files> (*make)();
};

void PrintTo(const Implementation& implementation, std::ostream* stream) {
    *stream << implementation.name;
}

class FileManagerContract : public ::testing::TestWithParam<Implementation> {
protected:
    [[nodiscard]] std::string at(const std::string& name) { return files->folder() + "/" + name; }
    FileManager& manager() { return files->manager(); }

    Pool pool;
    std::unique_ptr<Files> files = GetParam().make();
};

TEST_P(FileManagerContract, FilesAndFoldersExist) {
    EXPECT_TRUE(manager().exists(files->folder()));
    EXPECT_FALSE(manager().exists(at("a")));
    files->write(at("a"), "1");
    EXPECT_TRUE(manager().exists(at("a")));
}

TEST_P(FileManagerContract, AFolderIsMadeWithThoseAboveIt) {
    EXPECT_TRUE(manager().createFolder(at("one/two/three")));
    EXPECT_TRUE(manager().exists(at("one/two")));
    EXPECT_TRUE(manager().createFolder(at("one/two/three")));
}

TEST_P(FileManagerContract, RemovingAFolderTakesItsContents) {
    manager().createFolder(at("one/two"));
    files->write(at("one/two/a"), "1");
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
    files->write(at("a"), "1");
    EXPECT_TRUE(manager().copy(at("a"), at("b")));
    EXPECT_EQ(files->read(at("a")), "1");
    EXPECT_EQ(files->read(at("b")), "1");
}

TEST_P(FileManagerContract, AMoveTakesTheOriginalAway) {
    files->write(at("a"), "1");
    EXPECT_TRUE(manager().move(at("a"), at("b")));
    EXPECT_FALSE(manager().exists(at("a")));
    EXPECT_EQ(files->read(at("b")), "1");
}

TEST_P(FileManagerContract, NothingIsEverOverwritten) {
    files->write(at("a"), "1");
    files->write(at("b"), "2");
    EXPECT_FALSE(manager().copy(at("a"), at("b")));
    EXPECT_FALSE(manager().move(at("a"), at("b")));
    EXPECT_EQ(files->read(at("a")), "1");
    EXPECT_EQ(files->read(at("b")), "2");
}

TEST_P(FileManagerContract, ARenamedFolderTakesItsContentsAlong) {
    manager().createFolder(at("one/two"));
    files->write(at("one/two/a"), "1");
    EXPECT_TRUE(manager().rename(at("one"), at("\u8868")));
    EXPECT_FALSE(manager().exists(at("one")));
    EXPECT_EQ(files->read(at("\u8868/two/a")), "1");
}

TEST_P(FileManagerContract, RenamingNeitherOverwritesNorMakesAnything) {
    files->write(at("a"), "1");
    files->write(at("b"), "2");
    manager().createFolder(at("empty"));
    EXPECT_FALSE(manager().rename(at("a"), at("b")));
    EXPECT_FALSE(manager().rename(at("one"), at("empty")));
    EXPECT_FALSE(manager().rename(at("one"), at("two")));
    EXPECT_FALSE(manager().rename(at("a"), at("no folder/a")));
    EXPECT_EQ(files->read(at("a")), "1");
    EXPECT_EQ(files->read(at("b")), "2");
    EXPECT_FALSE(manager().exists(at("two")));
}

TEST_P(FileManagerContract, NamesOfAnyScriptWork) {
    const auto name = at("\u8868\u683c \U0001F5C2 e\u0301.txt");
    files->write(name, "1");
    EXPECT_TRUE(manager().exists(name));
    EXPECT_TRUE(manager().move(name, at("b")));
    EXPECT_EQ(files->read(at("b")), "1");
}

INSTANTIATE_TEST_SUITE_P(Every, FileManagerContract,
    ::testing::Values(
        Implementation{"InMemory", []() -> std::unique_ptr<Files> { return std::make_unique<InMemory>(); }},
        Implementation{"Foundation", []() -> std::unique_ptr<Files> { return std::make_unique<OnDisk>(); }}),
    [](const auto& info) { return std::string(info.param.name); });

} // namespace
} // namespace tarnwick::testing
