#include "tests/support/SettingsFixture.h"

namespace tarnwick::testing {
namespace {

class AddRulesTest : public SettingsFixture {
protected:
    AddRulesTest() {
        launch();
        platform_.files.folders.insert("/home");
    }
    void choose(void (SettingsViewController::*add)(), std::vector<std::string> paths) {
        (controller_.*add)();
        platform_.openPanel.choose(std::move(paths));
    }
    [[nodiscard]] const OpenPanelRequest& lastRequest() const { return platform_.openPanel.requests.back(); }
};

using Controller = SettingsViewController;

TEST_F(AddRulesTest, ThreeFoldersAreAppendedInTheChoosersOrderAndTheFirstOnesParentIsRemembered) {
    choose(&Controller::addSendFilesToRule, {"/a/Zoo", "/b/Attic", "/c/Mill"});
    EXPECT_EQ(texts(localList(RuleCategory::copyFilesTo), "realPath"),
        (std::vector<std::string>{"/a/Zoo", "/b/Attic", "/c/Mill"}));
    EXPECT_EQ(texts(localList(RuleCategory::copyFilesTo), "displayName"),
        (std::vector<std::string>{"Zoo", "Attic", "Mill"}));
    EXPECT_EQ(local("prePathOfSendFilesTo"), PlistValue("/a"));
}

TEST_F(AddRulesTest, AFolderRecordHoldsExactlyAnIntegerFlagThePathAndItsLastComponent) {
    choose(&Controller::addCommonPathRule, {"/a/Zoo"});
    const PlistArray expected{PlistDictionary{{"enable", 1}, {"realPath", "/a/Zoo"}, {"displayName", "Zoo"}}};
    EXPECT_EQ(localList(RuleCategory::commonPath), expected);
    EXPECT_EQ(sharedList(RuleCategory::commonPath), expected);
    EXPECT_EQ(local("prePathOfCommonPath"), PlistValue("/a"));
}

TEST_F(AddRulesTest, TheSameFolderAddedTwiceYieldsTwoEqualRecords) {
    choose(&Controller::addCommonPathRule, {"/a/Zoo"});
    choose(&Controller::addCommonPathRule, {"/a/Zoo"});
    const auto& list = localList(RuleCategory::commonPath);
    ASSERT_EQ(list.size(), 2U);
    EXPECT_EQ(list[0], list[1]);
}

TEST_F(AddRulesTest, ATemplateIsCopiedUnderItsOwnNameBeforeItsRecordIsMade) {
    platform_.files.files["/home/Archive.tar.gz"] = "archive";
    choose(&Controller::addCreateNewFileRule, {"/home/Archive.tar.gz"});
    EXPECT_EQ(platform_.files.files["/container/Templates/CreateNewFile/Archive.tar.gz"], "archive");
    EXPECT_EQ(localList(RuleCategory::createNewFile).back(),
        PlistValue(PlistDictionary{
            {"enable", "1"}, {"displayName", "Archive.tar"}, {"extension", "gz"}, {"modified", "1"}}));
    EXPECT_EQ(local("prePathOfCreateNewFile"), PlistValue("/home"));
}

TEST_F(AddRulesTest, ATemplateWhoseNameIsTakenIsLeftOutAndTheOthersAreStillAdded) {
    platform_.files.files["/home/Word.docx"] = "mine";
    platform_.files.files["/home/Letter.txt"] = "letter";
    choose(&Controller::addCreateNewFileRule, {"/home/Word.docx", "/home/Letter.txt"});
    EXPECT_EQ(controller_.numberOfRows(RuleCategory::createNewFile), 16);
    EXPECT_EQ(texts(localList(RuleCategory::createNewFile), "displayName").back(), "Letter");
    EXPECT_EQ(platform_.files.files["/container/Templates/CreateNewFile/Word.docx"], "template docx");
    EXPECT_TRUE(platform_.alerts.shown.size() == 1U); // the prompt of the launch alone
}

TEST_F(AddRulesTest, TheFolderIsRememberedEvenWhenEveryCopyFailed) {
    choose(&Controller::addCreateNewFileRule, {"/nowhere/Gone.txt"});
    EXPECT_EQ(controller_.numberOfRows(RuleCategory::createNewFile), 15);
    EXPECT_EQ(local("prePathOfCreateNewFile"), PlistValue("/nowhere"));
}

TEST_F(AddRulesTest, AFileWithoutExtensionGivesAnEmptyExtension) {
    platform_.files.files["/home/Makefile"] = "all:";
    choose(&Controller::addCreateNewFileRule, {"/home/Makefile"});
    const auto& list = localList(RuleCategory::createNewFile);
    EXPECT_EQ(texts(list, "displayName").back(), "Makefile");
    EXPECT_EQ(texts(list, "extension").back(), "");
}

TEST_F(AddRulesTest, APictureKeepsItsExtensionInTheNameAndItsBytesInTheRecord) {
    platform_.images.pictureFiles["/home/Blue.png"] = "tiff of blue";
    choose(&Controller::addCustomIconRule, {"/home/Blue.png"});
    EXPECT_EQ(localList(RuleCategory::customIcon).back(),
        PlistValue(PlistDictionary{{"enable", 1}, {"icon", tiffOf("tiff of blue")},
            {"displayName", "Blue.png"}, {"modified", "1"}}));
    EXPECT_EQ(local("prePathOfCustomIcon"), PlistValue("/home"));
}

TEST_F(AddRulesTest, AnUnreadablePictureIsSkippedSilently) {
    choose(&Controller::addCustomIconRule, {"/home/Broken.png"});
    EXPECT_EQ(controller_.numberOfRows(RuleCategory::customIcon), 20);
    EXPECT_TRUE(platform_.systemLog.lines.empty());
}

TEST_F(AddRulesTest, AnOthersItemTakesNameAndIconFromTheBuiltInImageOfThatName) {
    choose(&Controller::addOthersRule, {"/container/Templates/OthersMenuItemIcon/Copy Path.png"});
    EXPECT_EQ(localList(RuleCategory::others).back(),
        PlistValue(PlistDictionary{{"enable", 1}, {"icon", tiffOf("tiff of Copy Path")},
            {"displayName", "Copy Path"}, {"nameModified", "0"}, {"noteModified", "0"},
            {"Action", "Copy Path"}, {"Note", ""}}));
}

TEST_F(AddRulesTest, AnOthersNameWithoutBuiltInImageIsSkippedSilently) {
    platform_.images.missingNames.insert("Safari");
    choose(&Controller::addOthersRule, {"/home/Safari.png"});
    EXPECT_EQ(controller_.numberOfRows(RuleCategory::others), 18);
    EXPECT_TRUE(platform_.systemLog.lines.empty());
}

TEST_F(AddRulesTest, CancellingChangesNothingNotEvenTheRememberedFolder) {
    const auto before = platform_.preferences.local;
    controller_.addSendFilesToRule();
    platform_.log.clear();
    platform_.openPanel.cancel();
    EXPECT_EQ(platform_.preferences.local, before);
    EXPECT_TRUE(platform_.log.lines().empty());
}

TEST_F(AddRulesTest, TheFolderIsRememberedThenTheListStoredThenTheTableReloadedThenTheListPublished) {
    controller_.addSendFilesToRule();
    platform_.log.clear();
    platform_.openPanel.choose({"/a/Zoo"});
    EXPECT_EQ(platform_.log.lines(),
        (std::vector<std::string>{"local set prePathOfSendFilesTo", "local set arrOfCopyFilesTo",
            "local synchronise", "reload copyFilesTo", "shared open H7Q2ZK5RX9.org.halvane.Tarnwick",
            "shared set arrOfCopyFilesTo", "shared synchronise"}));
}

TEST_F(AddRulesTest, OthersRemembersNoFolder) {
    controller_.addOthersRule();
    platform_.log.clear();
    platform_.openPanel.choose({"/x/Cut.png"});
    EXPECT_EQ(platform_.log.lines().front(), "local set arrOfOthers");
}

TEST_F(AddRulesTest, AddingKeepsTheSelectionAndTheRemoveButton) {
    window_.table(RuleCategory::copyFilesTo).selected = -1;
    choose(&Controller::addSendFilesToRule, {"/a/Zoo"});
    EXPECT_EQ(window_.table(RuleCategory::copyFilesTo).selected, -1);
    EXPECT_FALSE(window_.removeButton(RuleCategory::copyFilesTo).enabled);
}

TEST_F(AddRulesTest, WithoutARememberedFolderTheChooserOpensAtTheDesktopOfTheLoginName) {
    for (const auto add : {&Controller::addCreateNewFileRule, &Controller::addSendFilesToRule,
             &Controller::addCommonPathRule, &Controller::addCustomIconRule}) {
        (controller_.*add)();
        EXPECT_EQ(lastRequest().startFolder, "/Users/anna/Desktop");
    }
}

TEST_F(AddRulesTest, ARememberedFolderIsWhereTheChooserOpensNext) {
    choose(&Controller::addSendFilesToRule, {"/a/b/Zoo"});
    controller_.addSendFilesToRule();
    EXPECT_EQ(lastRequest().startFolder, "/a/b");
}

TEST_F(AddRulesTest, ARememberedFolderOfTheWrongTypeReadsAsMissing) {
    platform_.preferences.local.insert_or_assign("prePathOfCommonPath", 7);
    controller_.addCommonPathRule();
    EXPECT_EQ(lastRequest().startFolder, "/Users/anna/Desktop");
}

struct ChooserCase {
    RuleCategory category;
    void (Controller::*add)();
    OpenPanelRequest expected;
};

void PrintTo(const ChooserCase& chooser, std::ostream* stream) {
    tarnwick::PrintTo(chooser.category, stream);
}

class ChooserTest : public AddRulesTest, public ::testing::WithParamInterface<ChooserCase> {};

TEST_P(ChooserTest, IsSetUpForItsCategory) {
    (controller_.*GetParam().add)();
    EXPECT_EQ(lastRequest(), GetParam().expected);
}

OpenPanelRequest request(bool files, std::vector<std::string> types, bool hidden, std::string start) {
    return {.canChooseFiles = files,
        .canChooseDirectories = !files,
        .canCreateDirectories = !files,
        .allowsMultipleSelection = true,
        .extensionsHidden = hidden,
        .allowedFileTypes = std::move(types),
        .startFolder = std::move(start),
        .startFolderIsURLText = false,
        .prompt = std::nullopt};
}

constexpr const char* desktop = "/Users/anna/Desktop";

INSTANTIATE_TEST_SUITE_P(Every, ChooserTest,
    ::testing::Values(ChooserCase{RuleCategory::createNewFile, &Controller::addCreateNewFileRule,
                          request(true, {}, false, desktop)},
        ChooserCase{
            RuleCategory::copyFilesTo, &Controller::addSendFilesToRule, request(false, {}, false, desktop)},
        ChooserCase{
            RuleCategory::commonPath, &Controller::addCommonPathRule, request(false, {}, false, desktop)},
        ChooserCase{
            RuleCategory::customIcon, &Controller::addCustomIconRule, request(true, {"png"}, false, desktop)},
        ChooserCase{RuleCategory::others, &Controller::addOthersRule,
            request(true, {"png"}, true, "/container/Templates/OthersMenuItemIcon")}));

} // namespace
} // namespace tarnwick::testing
