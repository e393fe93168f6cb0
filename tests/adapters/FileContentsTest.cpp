#include "platform/FileContents.h"
#include "adapters/foundation/Adapters.h"
#include "platform/FileManager.h"
#include "tests/adapters/Pool.h"
#include "tests/adapters/Waiting.h"
#include "tests/support/Printing.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarnwick::testing {
namespace {

/// Lets no file grow beyond a size, as a full disk would.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before_);
        rlimit limit = before_;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before_); }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit before_{};
};

class FileContentsTest : public ::testing::Test {
protected:
    FileContentsTest() { EXPECT_NE(mkdtemp(root.data()), nullptr); }
    ~FileContentsTest() override { makeFileManager()->remove(root); }

    [[nodiscard]] std::string at(const std::string& name) const { return root + "/" + name; }
    void put(const std::string& name, const std::string& content) const {
        std::ofstream(at(name)) << content;
    }
    [[nodiscard]] std::string contentOf(const std::string& name) const { return contentsOfFile(at(name)); }
    [[nodiscard]] ListFileContent readOf(const std::string& content) const {
        put("list", content);
        return contents->readList(at("list"));
    }

    Pool pool;
    std::unique_ptr<FileContents> contents = makeFileContents();
    std::string root = std::string(std::getenv("TARNWICK_USER_FOLDER")) + "/lists-XXXXXX";
    const PlistValue list = PlistDictionary{
        {"a", PlistArray{1, true, 1.5, "\u8868", PlistDate{1000}}}, {"b", PlistData({0, 1, 255})}};
};

TEST_F(FileContentsTest, AListIsWrittenAsXML) {
    EXPECT_EQ(contents->writeList(at("list"), list), ListFileWriting::done);
    EXPECT_EQ(contentOf("list").rfind("<?xml", 0), 0U);
}

TEST_F(FileContentsTest, AFileStaysAndNothingLiesBesideItWhenTheNewOneCannotBeComplete) {
    put("list", "old");
    {
        const FullDisk disk(10'000);
        const PlistValue large(PlistDictionary{{"a", std::string(100'000, 'x')}});
        EXPECT_EQ(contents->writeList(at("list"), large), ListFileWriting::failed);
    }
    EXPECT_EQ(contentOf("list"), "old");
    EXPECT_EQ(makeFileManager()->remove(at("list")), true);
    EXPECT_EQ(rmdir(root.c_str()), 0) << "something was left";
}

TEST_F(FileContentsTest, APipeIsNotWaitedFor) {
    EXPECT_EQ(mkfifo(at("pipe").c_str(), S_IRUSR | S_IWUSR), 0);
    EXPECT_EQ(contents->readList(at("pipe")), ListFileContent(ListFileFault::notRegular));
}

TEST_F(FileContentsTest, AFileIsTooLargeFromOneByteBeyondTheMostOn) {
    put("list", "");
    EXPECT_EQ(truncate(at("list").c_str(), static_cast<off_t>(FileContents::mostBytes) + 1), 0);
    EXPECT_EQ(contents->readList(at("list")), ListFileContent(ListFileFault::tooLarge));
}

TEST_F(FileContentsTest, OtherFormsThanXMLAreForeign) {
    for (const auto* content : {"bplist00\xD0", "{ a = b; }", "hello", "\x89PNG", "   \n"}) {
        EXPECT_EQ(readOf(content), ListFileContent(ListFileFault::foreign)) << content;
    }
}

TEST_F(FileContentsTest, ACutOffFileIsDamaged) {
    EXPECT_EQ(contents->writeList(at("whole"), list), ListFileWriting::done);
    const auto whole = contentOf("whole");
    EXPECT_EQ(readOf(whole.substr(0, whole.size() / 2)), ListFileContent(ListFileFault::damaged));
    EXPECT_EQ(readOf("<?xml version=\"1.0\"?><html></html>"), ListFileContent(ListFileFault::damaged));
}

TEST_F(FileContentsTest, ADeepNestIsRefusedAndHarmless) {
    std::string nest("<?xml version=\"1.0\"?><plist version=\"1.0\">");
    for (int depth = 0; depth < 200'000; ++depth) {
        nest += "<array>";
    }
    EXPECT_EQ(readOf(nest), ListFileContent(ListFileFault::damaged));
}

TEST_F(FileContentsTest, PropertyListsAreReadInEveryFormat) {
    put("xml", "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict><key>on</key><true/>"
               "<key>one</key><integer>1</integer></dict></plist>");
    EXPECT_EQ(contents->propertyList(at("xml")), PlistValue(PlistDictionary{{"on", true}, {"one", 1}}));
    put("text", "{ name = value; }");
    EXPECT_EQ(contents->propertyList(at("text")), PlistValue(PlistDictionary{{"name", "value"}}));
}

TEST_F(FileContentsTest, WhatIsNoPropertyListHasNoValue) {
    put("empty", "");
    EXPECT_FALSE(contents->propertyList(at("empty")));
    put("damaged", "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict><key>");
    EXPECT_FALSE(contents->propertyList(at("damaged")));
}

} // namespace
} // namespace tarnwick::testing
