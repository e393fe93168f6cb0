#include "platform/FileContents.h"
#include "tests/adapters/WorkFolder.h"
#include "tests/support/InMemoryImages.h"

namespace tarnwick::testing {
namespace {

PlistValue bytesOf(const std::string& text) {
    return tiffOf(text);
}

class FileContentsContract : public Contract<WorkFolder> {
protected:
    [[nodiscard]] std::string at(const std::string& name) { return harness_.at(name); }
    FileContents& contents() { return harness_.contents(); }
    [[nodiscard]] std::vector<std::string> names() { return harness_.files().namesIn(harness_.path()); }
    [[nodiscard]] ListFileContent listIn(const std::string& content) {
        harness_.write("list", content);
        return contents().readList(at("list"));
    }

    const PlistValue list = PlistDictionary{
        {"a", PlistArray{1, true, 1.5, "\u8868", PlistDate{1000}}}, {"b", PlistData({0, 1, 255})}};
};

TEST_P(FileContentsContract, AFileIsReadAsItWasWritten) {
    const auto content = bytesOf(std::string("a\0\xFF", 3) + std::string(200'000, 'x'));
    EXPECT_TRUE(contents().writeTree(at("a"), content));
    EXPECT_EQ(contents().readTree(at("a")), content);
}

TEST_P(FileContentsContract, AFolderIsReadWithAllThatItHolds) {
    const PlistValue tree(PlistDictionary{
        {"Contents", PlistDictionary{{"empty", PlistDictionary()}, {"e\u0301 \u8868", bytesOf("1")}}},
        {"b", bytesOf("")}});
    EXPECT_TRUE(contents().writeTree(at("a.pages"), tree));
    EXPECT_EQ(contents().readTree(at("a.pages")), tree);
}

TEST_P(FileContentsContract, ATreeReplacesNothing) {
    EXPECT_TRUE(contents().writeTree(at("a"), bytesOf("1")));
    EXPECT_FALSE(contents().writeTree(at("a"), bytesOf("2")));
    EXPECT_FALSE(contents().writeTree(at("a"), PlistDictionary()));
    EXPECT_EQ(contents().readTree(at("a")), bytesOf("1"));
}

TEST_P(FileContentsContract, OfAFolderThatCannotBeWrittenWholeNothingIsLeft) {
    const PlistDictionary tree{{"a", bytesOf("1")}, {"b", PlistDictionary{{"c", PlistValue("no file")}}}};
    EXPECT_FALSE(contents().writeTree(at("folder"), tree));
    EXPECT_EQ(names(), std::vector<std::string>());
}

TEST_P(FileContentsContract, WhatIsNotThereIsNoTree) {
    EXPECT_EQ(contents().readTree(at("a")), std::nullopt);
    EXPECT_FALSE(contents().writeTree(at("a/b"), bytesOf("1")));
}

TEST_P(FileContentsContract, ALinkIsNotFollowedAndSpoilsItsFolder) {
    EXPECT_TRUE(contents().writeTree(at("folder"), PlistDictionary{{"a", bytesOf("1")}}));
    harness_.link("folder/link", at("folder/a"));
    EXPECT_EQ(contents().readTree(at("folder/link")), std::nullopt);
    EXPECT_EQ(contents().readTree(at("folder")), std::nullopt);
}

TEST_P(FileContentsContract, AListIsReadAsItWasWritten) {
    EXPECT_EQ(contents().writeList(at("list"), list), ListFileWriting::done);
    EXPECT_EQ(contents().readList(at("list")), ListFileContent(list));
    EXPECT_EQ(contents().propertyList(at("list")), list);
    EXPECT_TRUE(harness_.files().exists(at("list")));
}

TEST_P(FileContentsContract, AListTakesThePlaceOfAnyFile) {
    harness_.write("list", "old");
    EXPECT_EQ(contents().writeList(at("list"), list), ListFileWriting::done);
    EXPECT_EQ(contents().readList(at("list")), ListFileContent(list));
    EXPECT_EQ(names(), std::vector<std::string>{"list"});
}

TEST_P(FileContentsContract, AListGoesWithItsFile) {
    EXPECT_EQ(contents().writeList(at("list"), list), ListFileWriting::done);
    EXPECT_TRUE(harness_.files().move(at("list"), at("moved")));
    EXPECT_EQ(contents().readList(at("moved")), ListFileContent(list));
    EXPECT_EQ(contents().readList(at("list")), ListFileContent(ListFileFault::unreadable));
}

TEST_P(FileContentsContract, AListIsWrittenNeitherWhereThereIsNoFolderNorInAFoldersPlace) {
    EXPECT_EQ(contents().writeList(at("none/list"), list), ListFileWriting::failed);
    EXPECT_EQ(contents().writeList(harness_.path(), list), ListFileWriting::failed);
    EXPECT_EQ(names(), std::vector<std::string>());
}

TEST_P(FileContentsContract, AFolderOrALinkIsNoRegularFile) {
    EXPECT_EQ(contents().writeList(at("list"), list), ListFileWriting::done);
    harness_.link("link", at("list"));
    EXPECT_EQ(contents().readList(harness_.path()), ListFileContent(ListFileFault::notRegular));
    EXPECT_EQ(contents().readList(at("link")), ListFileContent(ListFileFault::notRegular));
}

TEST_P(FileContentsContract, WhatIsNoListSaysWhy) {
    EXPECT_EQ(listIn(""), ListFileContent(ListFileFault::empty));
    EXPECT_EQ(listIn("hello"), ListFileContent(ListFileFault::foreign));
    EXPECT_EQ(contents().readList(at("none")), ListFileContent(ListFileFault::unreadable));
    EXPECT_EQ(contents().propertyList(at("none")), std::nullopt);
}

TARNWICK_BOTH_IMPLEMENTATIONS(FileContentsContract);

} // namespace
} // namespace tarnwick::testing
