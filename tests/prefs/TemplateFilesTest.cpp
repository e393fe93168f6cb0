#include "prefs/TemplateFiles.h"
#include "tests/support/PrefsFixture.h"

namespace tarnwick::testing {
namespace {

const std::string folder = "/container/Templates/CreateNewFile/";

/// Starts with a note that an earlier process has left.
class TemplateFilesTest : public PrefsFixture {
protected:
    /// A list of one record, Letter.txt.
    void SetUp() override {
        load();
        storeList(RuleCategory::createNewFile, {makeRecord({{"enable", "1"}, {"displayName", "Letter"},
                                                   {"extension", "txt"}, {"modified", "1"}})});
        for (const auto* name : {"Letter.txt", "Memo.txt"}) {
            platform_.files.files[folder + name] = name;
        }
    }
    void startWithNote(const PlistValue& note) {
        platform_.preferences.local.insert_or_assign("pendingTemplateFiles", note);
        load();
    }
    [[nodiscard]] bool holds(const std::string& name) const { return platform_.files.exists(folder + name); }
    [[nodiscard]] bool isNoted() const {
        return platform_.preferences.local.count("pendingTemplateFiles") != 0;
    }
};

TEST_F(TemplateFilesTest, WithoutANoteAStartTouchesNoFileWhoeverOwnsIt) {
    load();
    EXPECT_TRUE(holds("Letter.txt"));
    EXPECT_TRUE(holds("Memo.txt"));
}

TEST_F(TemplateFilesTest, AnInterruptedRemovalIsFinishedWithALogLine) {
    startWithNote(PlistArray{"remove", "Memo.txt"});
    EXPECT_FALSE(holds("Memo.txt"));
    EXPECT_TRUE(platform_.systemLog.lines.end() !=
                std::find(platform_.systemLog.lines.begin(), platform_.systemLog.lines.end(),
                    "template file Memo.txt: removed after an interruption"));
    EXPECT_FALSE(isNoted());
}

TEST_F(TemplateFilesTest, ARemovalThatNeverReachedTheListRemovesNothing) {
    startWithNote(PlistArray{"remove", "Letter.txt"});
    EXPECT_TRUE(holds("Letter.txt"));
    EXPECT_FALSE(isNoted());
}

TEST_F(TemplateFilesTest, AnInterruptedRenameMovesTheFileToTheStoredName) {
    platform_.files.files.erase(folder + "Letter.txt");
    startWithNote(PlistArray{"move", "Memo.txt", "Letter.txt"});
    EXPECT_EQ(platform_.files.files[folder + "Letter.txt"], "Memo.txt");
    EXPECT_FALSE(holds("Memo.txt"));
}

TEST_F(TemplateFilesTest, AnInterruptedRenameNeverOverwrites) {
    startWithNote(PlistArray{"move", "Memo.txt", "Letter.txt"});
    EXPECT_EQ(platform_.files.files[folder + "Letter.txt"], "Letter.txt");
    EXPECT_TRUE(holds("Memo.txt"));
    EXPECT_FALSE(isNoted());
}

TEST_F(TemplateFilesTest, ACopyWithoutExtensionThatHasItsRecordStays) {
    storeList(RuleCategory::createNewFile,
        {makeRecord({{"enable", "1"}, {"displayName", "Makefile"}, {"extension", ""}, {"modified", "1"}})});
    platform_.files.files[folder + "Makefile"] = "all:";
    startWithNote(PlistArray{"copy", "Makefile", "Memo.txt"});
    EXPECT_TRUE(holds("Makefile"));
    EXPECT_FALSE(holds("Memo.txt"));
}

TEST_F(TemplateFilesTest, AFileThatWasThereBeforeACopyOfItsNameIsNotNoted) {
    platform_.files.files["/home/Memo.txt"] = "chosen";
    platform_.log.clear();
    const auto work = preferences_.templateFiles.beginCopying({"/home/Memo.txt"});
    EXPECT_FALSE(preferences_.templateFiles.copy("/home/Memo.txt"));
    preferences_.templateFiles.finish(work, list(RuleCategory::createNewFile));
    EXPECT_FALSE(platform_.log.holds("local set pendingTemplateFiles"));
    EXPECT_EQ(platform_.files.files[folder + "Memo.txt"], "Memo.txt");
}

TEST_F(TemplateFilesTest, ALayoutIsNotRepeatedOverTheFilesOfAnotherList) {
    startWithNote(PlistArray{"lay out"});
    EXPECT_TRUE(holds("Letter.txt"));
    EXPECT_TRUE(holds("Memo.txt"));
    EXPECT_FALSE(isNoted());
}

TEST_F(TemplateFilesTest, NamesThatLeadOutOfTheFolderAreRefused) {
    platform_.files.files["/container/Templates/keep.txt"] = "keep";
    startWithNote(PlistArray{"remove", "../keep.txt", "..", ".", "", "FunctionIcon/x"});
    EXPECT_TRUE(platform_.files.exists("/container/Templates/keep.txt"));
    EXPECT_TRUE(holds("Letter.txt"));
    EXPECT_FALSE(isNoted());
}

TEST_F(TemplateFilesTest, ANoteOfTheWrongKindIsForgottenAndHarmsNothing) {
    for (const auto& note :
        {PlistValue(1), PlistValue("remove"), PlistValue(PlistArray{}), PlistValue(PlistArray{"remove", 1}),
            PlistValue(PlistArray{"burn", "Memo.txt"}), PlistValue(PlistArray{"move", "Memo.txt"})}) {
        startWithNote(note);
        EXPECT_TRUE(holds("Memo.txt"));
        EXPECT_FALSE(isNoted());
    }
}

TEST_F(TemplateFilesTest, TheNoteIsKeptWhileThereIsNoContainer) {
    platform_.folders.container.reset();
    startWithNote(PlistArray{"remove", "Memo.txt"});
    EXPECT_TRUE(isNoted());
    platform_.folders.container = "/container";
    load();
    EXPECT_FALSE(holds("Memo.txt"));
    EXPECT_FALSE(isNoted());
}

} // namespace
} // namespace tarnwick::testing
