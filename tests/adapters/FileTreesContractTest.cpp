#include "adapters/foundation/Adapters.h"
#include "platform/FileManager.h"
#include "tests/adapters/Pool.h"
#include "tests/support/InMemoryFileTrees.h"
#include "tests/support/InMemoryImages.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <ostream>
#include <sys/stat.h>
#include <unistd.h>

namespace tarnwick::testing {
namespace {

/// One implementation of the port with a folder to work in.
struct Trees {
    virtual ~Trees() = default;
    virtual FileTrees& trees() = 0;
    virtual std::string folder() = 0;
    virtual void link(const std::string& path) = 0;
};

struct InMemory final : Trees {
    CallLog log;
    InMemoryFiles files{log};
    InMemoryFileTrees inMemory{log, files};

    InMemory() { files.folders.insert("/work"); }
    FileTrees& trees() override { return inMemory; }
    std::string folder() override { return "/work"; }
    void link(const std::string& path) override { inMemory.links.insert(path); }
};

struct OnDisk final : Trees {
    std::unique_ptr<FileTrees> onDisk = makeFileTrees();
    std::string root = std::string(std::getenv("TARNWICK_USER_FOLDER")) + "/trees-XXXXXX";

    OnDisk() { EXPECT_NE(mkdtemp(root.data()), nullptr); }
    ~OnDisk() override { makeFileManager()->remove(root); }
    FileTrees& trees() override { return *onDisk; }
    std::string folder() override { return root; }
    void link(const std::string& path) override { EXPECT_EQ(symlink("/etc/passwd", path.c_str()), 0); }
};

struct Implementation {
    const char* name;
    std::unique_ptr<Trees> (*make)();
};

void PrintTo(const Implementation& implementation, std::ostream* stream) {
    *stream << implementation.name;
}

PlistValue bytes(const std::string& text) {
    return tiffOf(text);
}

class FileTreesContract : public ::testing::TestWithParam<Implementation> {
protected:
    [[nodiscard]] std::string at(const std::string& name) { return owner->folder() + "/" + name; }
    FileTrees& trees() { return owner->trees(); }

    Pool pool;
    std::unique_ptr<Trees> owner = GetParam().make();
};

TEST_P(FileTreesContract, AFileIsReadAsItWasWritten) {
    const auto content = bytes(std::string("a\0\xFF", 3) + std::string(200'000, 'x'));
    EXPECT_TRUE(trees().write(at("a"), content));
    EXPECT_EQ(trees().read(at("a")), content);
}

TEST_P(FileTreesContract, AFolderIsReadWithAllThatItHolds) {
    const PlistValue tree(PlistDictionary{
        {"Contents", PlistDictionary{{"empty", PlistDictionary()}, {"e\u0301 \u8868", bytes("1")}}},
        {"b", bytes("")}});
    EXPECT_TRUE(trees().write(at("a.pages"), tree));
    EXPECT_EQ(trees().read(at("a.pages")), tree);
}

TEST_P(FileTreesContract, WhatIsThereIsNotReplaced) {
    EXPECT_TRUE(trees().write(at("a"), bytes("1")));
    EXPECT_FALSE(trees().write(at("a"), bytes("2")));
    EXPECT_FALSE(trees().write(at("a"), PlistDictionary()));
    EXPECT_EQ(trees().read(at("a")), bytes("1"));
}

TEST_P(FileTreesContract, OfAFolderThatCannotBeWrittenWholeNothingIsLeft) {
    const PlistDictionary tree{{"a", bytes("1")}, {"b", PlistDictionary{{"c", PlistValue("no file")}}}};
    EXPECT_FALSE(trees().write(at("folder"), tree));
    EXPECT_EQ(trees().namesIn(owner->folder()), std::vector<std::string>());
}

TEST_P(FileTreesContract, WhatIsNotThereCannotBeReadAndHasNoNames) {
    EXPECT_EQ(trees().read(at("a")), std::nullopt);
    EXPECT_EQ(trees().namesIn(at("a")), std::vector<std::string>());
    EXPECT_FALSE(trees().write(at("a/b"), bytes("1")));
}

TEST_P(FileTreesContract, ALinkIsNotFollowedAndSpoilsItsFolder) {
    EXPECT_TRUE(trees().write(at("folder"), PlistDictionary{{"a", bytes("1")}}));
    owner->link(at("folder/link"));
    EXPECT_EQ(trees().read(at("folder/link")), std::nullopt);
    EXPECT_EQ(trees().read(at("folder")), std::nullopt);
    EXPECT_EQ(trees().namesIn(at("folder")), (std::vector<std::string>{"a", "link"}));
}

INSTANTIATE_TEST_SUITE_P(Every, FileTreesContract,
    ::testing::Values(
        Implementation{"InMemory", []() -> std::unique_ptr<Trees> { return std::make_unique<InMemory>(); }},
        Implementation{"Posix", []() -> std::unique_ptr<Trees> { return std::make_unique<OnDisk>(); }}),
    [](const auto& info) { return std::string(info.param.name); });

} // namespace
} // namespace tarnwick::testing
