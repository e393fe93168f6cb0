#include "tests/support/EditingFixture.h"

namespace tarnwick::testing {
namespace {

class AddRulesTest : public EditingFixture {
protected:
    AddRulesTest() {
        launch();
        platform_.files.folders.insert("/home");
    }
    void choose(RuleCategory category, std::vector<std::string> paths) {
        editing_.adding.add(category);
        platform_.panels.confirm(std::move(paths));
    }
    [[nodiscard]] const OpenPanelRequest& lastRequest() const { return platform_.panels.requests.back(); }
};

TEST_F(AddRulesTest, ThreeFoldersAreAppendedInTheChoosersOrderAndTheFirstOnesParentIsRemembered) {
    choose(RuleCategory::copyFilesTo, {"/a/Zoo", "/b/Attic", "/c/Mill"});
    EXPECT_EQ(texts(localList(RuleCategory::copyFilesTo), "realPath"),
        (std::vector<std::string>{"/a/Zoo", "/b/Attic", "/c/Mill"}));
    EXPECT_EQ(texts(localList(RuleCategory::copyFilesTo), "displayName"),
        (std::vector<std::string>{"Zoo", "Attic", "Mill"}));
    EXPECT_EQ(local("prePathOfSendFilesTo"), PlistValue("/a"));
}

TEST_F(AddRulesTest, AFolderRecordHoldsExactlyAnIntegerFlagThePathAndItsLastComponent) {
    choose(RuleCategory::commonPath, {"/a/Zoo"});
    const PlistArray expected{PlistDictionary{{"enable", 1}, {"realPath", "/a/Zoo"}, {"displayName", "Zoo"}}};
    EXPECT_EQ(localList(RuleCategory::commonPath), expected);
    EXPECT_EQ(sharedList(RuleCategory::commonPath), expected);
    EXPECT_EQ(local("prePathOfCommonPath"), PlistValue("/a"));
}

TEST_F(AddRulesTest, TheSameFolderAddedTwiceYieldsTwoEqualRecords) {
    choose(RuleCategory::commonPath, {"/a/Zoo"});
    choose(RuleCategory::commonPath, {"/a/Zoo"});
    const auto& list = localList(RuleCategory::commonPath);
    ASSERT_EQ(list.size(), 2U);
    EXPECT_EQ(list[0], list[1]);
}

TEST_F(AddRulesTest, TheLastNewRowIsScrolledToAndTheSelectionStays) {
    choose(RuleCategory::commonPath, {"/a/Zoo"});
    tables_.table(RuleCategory::commonPath).selected = 0;
    choose(RuleCategory::commonPath, {"/b/Attic", "/c/Mill"});
    EXPECT_EQ(platform_.log.lines().back(), "scroll commonPath 2");
    EXPECT_EQ(tables_.table(RuleCategory::commonPath).selected, 0);
}

TEST_F(AddRulesTest, NothingIsScrolledToWhenNothingWasAdded) {
    choose(RuleCategory::createNewFile, {"/nowhere/Gone.txt"});
    EXPECT_TRUE(platform_.log.linesWith("scroll ").empty());
}

TEST_F(AddRulesTest, ATemplateIsCopiedUnderItsOwnNameBeforeItsRecordIsMade) {
    platform_.files.files["/home/Archive.tar.gz"] = "archive";
    choose(RuleCategory::createNewFile, {"/home/Archive.tar.gz"});
    EXPECT_EQ(platform_.files.files["/container/Templates/CreateNewFile/Archive.tar.gz"], "archive");
    EXPECT_EQ(localList(RuleCategory::createNewFile).back(),
        PlistValue(PlistDictionary{
            {"enable", "1"}, {"displayName", "Archive.tar"}, {"extension", "gz"}, {"modified", "1"}}));
    EXPECT_EQ(local("prePathOfCreateNewFile"), PlistValue("/home"));
}

TEST_F(AddRulesTest, ATemplateWhoseNameIsTakenIsLeftOutAndTheOthersAreStillAdded) {
    platform_.files.files["/home/Word.docx"] = "mine";
    platform_.files.files["/home/Letter.txt"] = "letter";
    choose(RuleCategory::createNewFile, {"/home/Word.docx", "/home/Letter.txt"});
    EXPECT_EQ(rows(RuleCategory::createNewFile), 16);
    EXPECT_EQ(texts(localList(RuleCategory::createNewFile), "displayName").back(), "Letter");
    EXPECT_EQ(platform_.files.files["/container/Templates/CreateNewFile/Word.docx"], "template docx");
    EXPECT_TRUE(platform_.panels.alerts.empty()); // the prompt of the launch alone
}

TEST_F(AddRulesTest, TheFolderIsRememberedEvenWhenEveryCopyFailed) {
    choose(RuleCategory::createNewFile, {"/nowhere/Gone.txt"});
    EXPECT_EQ(rows(RuleCategory::createNewFile), 15);
    EXPECT_EQ(local("prePathOfCreateNewFile"), PlistValue("/nowhere"));
}

TEST_F(AddRulesTest, AFileWithoutExtensionGivesAnEmptyExtension) {
    platform_.files.files["/home/Makefile"] = "all:";
    choose(RuleCategory::createNewFile, {"/home/Makefile"});
    const auto& list = localList(RuleCategory::createNewFile);
    EXPECT_EQ(texts(list, "displayName").back(), "Makefile");
    EXPECT_EQ(texts(list, "extension").back(), "");
}

TEST_F(AddRulesTest, APictureKeepsItsExtensionInTheNameAndItsBytesInTheRecord) {
    platform_.images.pictureFiles["/home/Blue.png"] = "tiff of blue";
    choose(RuleCategory::customIcon, {"/home/Blue.png"});
    EXPECT_EQ(localList(RuleCategory::customIcon).back(),
        PlistValue(PlistDictionary{{"enable", 1}, {"icon", tiffOf("tiff of blue")},
            {"displayName", "Blue.png"}, {"modified", "1"}}));
    EXPECT_EQ(local("prePathOfCustomIcon"), PlistValue("/home"));
}

TEST_F(AddRulesTest, AnUnreadablePictureIsSkippedSilently) {
    choose(RuleCategory::customIcon, {"/home/Broken.png"});
    EXPECT_EQ(rows(RuleCategory::customIcon), 20);
    EXPECT_TRUE(platform_.systemLog.lines.empty());
}

TEST_F(AddRulesTest, AnOthersItemTakesNameAndIconFromTheBuiltInImageOfThatName) {
    choose(RuleCategory::others, {"/container/Templates/OthersMenuItemIcon/Copy Path.png"});
    EXPECT_EQ(localList(RuleCategory::others).back(),
        PlistValue(PlistDictionary{{"enable", 1}, {"icon", tiffOf("tiff of Copy Path")},
            {"displayName", "Copy Path"}, {"nameModified", "0"}, {"noteModified", "0"},
            {"Action", "Copy Path"}, {"Note", ""}}));
}

TEST_F(AddRulesTest, AnOthersNameWithoutBuiltInImageIsSkippedSilently) {
    platform_.images.missingNames.insert("Safari");
    choose(RuleCategory::others, {"/home/Safari.png"});
    EXPECT_EQ(rows(RuleCategory::others), 18);
    EXPECT_TRUE(platform_.systemLog.lines.empty());
}

TEST_F(AddRulesTest, CancellingChangesNothingNotEvenTheRememberedFolder) {
    const auto before = platform_.preferences.local;
    editing_.adding.add(RuleCategory::copyFilesTo);
    platform_.log.clear();
    platform_.panels.cancel();
    EXPECT_EQ(platform_.preferences.local, before);
    EXPECT_TRUE(platform_.log.lines().empty());
}

TEST_F(AddRulesTest, TheFolderIsRememberedThenTheListStoredThenTheTableReloadedThenTheListPublished) {
    editing_.adding.add(RuleCategory::copyFilesTo);
    platform_.log.clear();
    platform_.panels.confirm({"/a/Zoo"});
    EXPECT_EQ(platform_.log.lines(),
        (std::vector<std::string>{"local set prePathOfSendFilesTo", "local set arrOfCopyFilesTo",
            "local synchronise", "reload copyFilesTo", "shared open H7Q2ZK5RX9.org.halvane.Tarnwick",
            "shared set arrOfCopyFilesTo", "shared synchronise", "scroll copyFilesTo 0"}));
}

TEST_F(AddRulesTest, OthersRemembersNoFolder) {
    editing_.adding.add(RuleCategory::others);
    platform_.log.clear();
    platform_.panels.confirm({"/x/Cut.png"});
    EXPECT_EQ(platform_.log.lines().front(), "local set arrOfOthers");
}

TEST_F(AddRulesTest, AddingKeepsTheSelectionAndTheRemoveButton) {
    tables_.table(RuleCategory::copyFilesTo).selected = -1;
    tables_.table(RuleCategory::copyFilesTo).canRemove = false;
    choose(RuleCategory::copyFilesTo, {"/a/Zoo"});
    EXPECT_EQ(tables_.table(RuleCategory::copyFilesTo).selected, -1);
    EXPECT_FALSE(tables_.table(RuleCategory::copyFilesTo).canRemove);
}

TEST_F(AddRulesTest, WithoutARememberedFolderTheChooserOpensAtTheDesktopOfTheLoginName) {
    for (const auto add : {RuleCategory::createNewFile, RuleCategory::copyFilesTo, RuleCategory::commonPath,
             RuleCategory::customIcon}) {
        editing_.adding.add(add);
        EXPECT_EQ(lastRequest().startFolder, "/Users/anna/Desktop");
    }
}

TEST_F(AddRulesTest, ARememberedFolderIsWhereTheChooserOpensNext) {
    choose(RuleCategory::copyFilesTo, {"/a/b/Zoo"});
    editing_.adding.add(RuleCategory::copyFilesTo);
    EXPECT_EQ(lastRequest().startFolder, "/a/b");
}

TEST_F(AddRulesTest, ARememberedFolderOfTheWrongTypeReadsAsMissing) {
    platform_.preferences.local.insert_or_assign("prePathOfCommonPath", 7);
    editing_.adding.add(RuleCategory::commonPath);
    EXPECT_EQ(lastRequest().startFolder, "/Users/anna/Desktop");
}

struct ChooserCase {
    RuleCategory category;
    OpenPanelRequest expected;
};

void PrintTo(const ChooserCase& chooser, std::ostream* stream) {
    tarnwick::PrintTo(chooser.category, stream);
}

class ChooserTest : public AddRulesTest, public ::testing::WithParamInterface<ChooserCase> {};

TEST_P(ChooserTest, IsSetUpForItsCategory) {
    editing_.adding.add(GetParam().category);
    EXPECT_EQ(lastRequest(), GetParam().expected);
}

OpenPanelRequest request(
    bool files, std::vector<std::string> types, bool hidden, std::string start, std::string message) {
    return {.canChooseFiles = files,
        .canChooseDirectories = !files,
        .canCreateDirectories = !files,
        .allowsMultipleSelection = true,
        .extensionsHidden = hidden,
        .allowedFileTypes = std::move(types),
        .startFolder = std::move(start),
        .startFolderIsURLText = false,
        .prompt = std::nullopt,
        .message = std::move(message)};
}

constexpr const char* desktop = "/Users/anna/Desktop";

INSTANTIATE_TEST_SUITE_P(Every, ChooserTest,
    ::testing::Values(
        ChooserCase{RuleCategory::createNewFile,
            request(true, {}, false, desktop, "Choose files: the menu then offers new ones like them.")},
        ChooserCase{RuleCategory::copyFilesTo,
            request(false, {}, false, desktop, "Choose folders that files are to be copied or moved to.")},
        ChooserCase{RuleCategory::commonPath,
            request(false, {}, false, desktop, "Choose folders that the menu is to open.")},
        ChooserCase{RuleCategory::customIcon, request(true, {"png"}, false, desktop,
                                                  "Choose PNG pictures that the menu is to offer as icons.")},
        ChooserCase{
            RuleCategory::others, request(true, {"png"}, true, "/container/Templates/OthersMenuItemIcon",
                                      "Choose items that the menu is to show again.")}));

} // namespace
} // namespace tarnwick::testing
