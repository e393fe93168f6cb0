#include "Files.h"
#include "Probe.h"

#include <gtest/gtest.h>

#include <chrono>
#include <sys/stat.h>

using namespace tarnwick::probe;

namespace {

const std::string suite = "group.test";

std::string suiteFile() {
    return defaultsFolder() + "/" + suite + ".plist";
}

void writeFromAnotherProgram(const std::string& key, const std::string& value) {
    outputOf(std::string(TARNWICK_SUITE_WRITER) + " " + suite + " " + key + " " + value);
}

ino_t inodeOf(const std::string& path) {
    struct stat status = {};
    EXPECT_EQ(stat(path.c_str(), &status), 0);
    return status.st_ino;
}

} // namespace

TEST(SuiteDefaults, KeepsTheKindOfEveryValueForOtherReaders) {
    ASSERT_TRUE(writeEveryKind(suite));
    const std::string script = "import plistlib,sys\n"
                               "d = plistlib.load(open(sys.argv[1], \"rb\"))\n"
                               "[print(k, type(d[k]).__name__, repr(d[k])) for k in sorted(d)]\n";
    const auto output = outputOf("python3 -c '" + script + "' " + suiteFile());
    EXPECT_EQ(output, "array list [{'off': False, 'seven': 7}]\n"
                      "boolean bool True\n"
                      "data bytes b'a\\x00b'\n"
                      "date datetime datetime.datetime(1970, 1, 2, 0, 0)\n"
                      "integer int 1\n"
                      "real float 2.5\n"
                      "string str '\u8868\u683c \U0001F5C2 & <x>'\n");
}

TEST(SuiteDefaults, WritesAFileThatOthersCanReadWhateverTheTextsHold) {
    setSuiteString(suite, "key", "a\x1b z");
    ASSERT_TRUE(synchronizeSuite(suite));
    const std::string script = "import plistlib,sys\n"
                               "print(ascii(plistlib.load(open(sys.argv[1], \"rb\"))[\"key\"]))\n";
    EXPECT_EQ(outputOf("python3 -c '" + script + "' " + suiteFile()), "'a\\ufffd z'\n");
}

TEST(SuiteDefaults, ChangesMemoryOnlyUntilItIsSynchronized) {
    setSuiteString(suite, "key", "value");
    EXPECT_EQ(suiteString(suite, "key"), "value");
    EXPECT_FALSE(exists(suiteFile()));
    EXPECT_TRUE(synchronizeSuite(suite));
    EXPECT_TRUE(exists(suiteFile()));
}

TEST(SuiteDefaults, WritesUnsynchronizedChangesAfterAWhile) {
    setSuiteString(suite, "key", "value");
    ASSERT_TRUE(waitForFile(suiteFile()));
    EXPECT_NE(contentOf(suiteFile()).find("<string>value</string>"), std::string::npos);
}

TEST(SuiteDefaults, WritesUnsynchronizedChangesAtTheEndOfTheProgram) {
    outputOf(std::string(TARNWICK_SUITE_WRITER) + " --exit " + suite + " key value");
    EXPECT_NE(contentOf(suiteFile()).find("<string>value</string>"), std::string::npos);
    const auto standard = contentOf(defaultsFolder() + "/org.halvane.Tarnwick.plist");
    EXPECT_NE(standard.find("<string>value</string>"), std::string::npos);
}

TEST(SuiteDefaults, MergesTheChangesOfTwoPrograms) {
    setSuiteString(suite, "mine", "1");
    setSuiteString(suite, "contested", "mine");
    writeFromAnotherProgram("theirs", "2");
    ASSERT_TRUE(synchronizeSuite(suite));
    EXPECT_EQ(suiteString(suite, "mine"), "1");
    EXPECT_EQ(suiteString(suite, "theirs"), "2");
    const auto content = contentOf(suiteFile());
    EXPECT_NE(content.find("<key>mine</key>"), std::string::npos);
    EXPECT_NE(content.find("<key>theirs</key>"), std::string::npos);
}

TEST(SuiteDefaults, SeesWhatAnotherProgramWritesLater) {
    setSuiteString(suite, "key", "old");
    ASSERT_TRUE(synchronizeSuite(suite));
    writeFromAnotherProgram("key", "new");
    EXPECT_EQ(suiteString(suite, "key"), "new");
}

TEST(SuiteDefaults, RemovesAKeyFromTheFile) {
    setSuiteString(suite, "kept", "1");
    setSuiteString(suite, "removed", "2");
    ASSERT_TRUE(synchronizeSuite(suite));
    removeSuiteKey(suite, "removed");
    ASSERT_TRUE(synchronizeSuite(suite));
    EXPECT_EQ(suiteString(suite, "removed"), "(none)");
    EXPECT_EQ(contentOf(suiteFile()).find("removed"), std::string::npos);
    EXPECT_NE(contentOf(suiteFile()).find("kept"), std::string::npos);
}

TEST(SuiteDefaults, WritesNothingWithoutAChange) {
    setSuiteString(suite, "key", "value");
    ASSERT_TRUE(synchronizeSuite(suite));
    const auto before = inodeOf(suiteFile());
    setSuiteString(suite, "key", "value");
    EXPECT_TRUE(synchronizeSuite(suite));
    EXPECT_EQ(inodeOf(suiteFile()), before);
    setSuiteString(suite, "key", "other");
    EXPECT_TRUE(synchronizeSuite(suite));
    EXPECT_NE(inodeOf(suiteFile()), before);
}

TEST(SuiteDefaults, WritesABooleanOverAnEqualNumber) {
    writeContent(suiteFile(), "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict>"
                              "<key>on</key><integer>1</integer></dict></plist>");
    setSuiteBoolean(suite, "on", true);
    ASSERT_TRUE(synchronizeSuite(suite));
    EXPECT_NE(contentOf(suiteFile()).find("<true/>"), std::string::npos);
}

TEST(SuiteDefaults, WritesAListOnlyWhenSomethingInItHasChanged) {
    ASSERT_TRUE(writeRecords(suite, 3, MarkKind::integer));
    const auto before = inodeOf(suiteFile());
    ASSERT_TRUE(writeRecords(suite, 3, MarkKind::integer));
    EXPECT_EQ(inodeOf(suiteFile()), before);
    ASSERT_TRUE(writeRecords(suite, 3, MarkKind::boolean));
    EXPECT_NE(contentOf(suiteFile()).find("<true/>"), std::string::npos);
    EXPECT_EQ(contentOf(suiteFile()).find("<integer>"), std::string::npos);
}

TEST(SuiteDefaults, WritesAHundredThousandRecordsInSeconds) {
    const auto begin = std::chrono::steady_clock::now();
    ASSERT_TRUE(writeRecords(suite, 100000, MarkKind::integer));
    ASSERT_TRUE(writeRecords(suite, 100000, MarkKind::boolean));
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - begin;
    EXPECT_LT(taken.count(), 20);
    EXPECT_EQ(outputOf("grep -c '<true/>' " + suiteFile()), "100000\n");
}

TEST(SuiteDefaults, MovesADamagedFileAsideInsteadOfOverwritingIt) {
    writeContent(suiteFile(), "<?xml version=\"1.0\"?><plist><dict><key>cut");
    EXPECT_EQ(suiteString(suite, "cut"), "(none)");
    setSuiteString(suite, "key", "value");
    ASSERT_TRUE(synchronizeSuite(suite));
    EXPECT_EQ(contentOf(suiteFile() + ".damaged-1"), "<?xml version=\"1.0\"?><plist><dict><key>cut");
    writeContent(suiteFile(), "");
    EXPECT_EQ(suiteString(suite, "key"), "(none)");
    EXPECT_TRUE(exists(suiteFile() + ".damaged-2"));
    EXPECT_NE(contentOf(suiteFile() + ".damaged-1"), "");
}
