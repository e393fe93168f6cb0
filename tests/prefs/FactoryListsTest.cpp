#include "prefs/FactoryTables.h"
#include "tests/support/PrefsFixture.h"

#include <algorithm>

namespace tarnwick::testing {
namespace {

class FactoryListsTest : public PrefsFixture {
protected:
    void SetUp() override { load(); }
};

TEST_F(FactoryListsTest, TheTemplatesAreFifteenNineOfThemOnAsStrings) {
    const auto& list = localList(RuleCategory::createNewFile);
    ASSERT_EQ(list.size(), 15U);
    for (std::size_t row = 0; row < list.size(); ++row) {
        EXPECT_EQ(list[row], PlistValue(PlistDictionary{{"enable", row < 9 ? "1" : "0"},
                                 {"displayName", factoryTemplates[row].displayName},
                                 {"extension", factoryTemplates[row].extension}, {"modified", "0"}}));
    }
    EXPECT_EQ(texts(list, "displayName"),
        (std::vector<std::string>{"TXT", "RTF", "XML", "Word", "Excel", "PPT", "WPS_wps", "WPS_et", "WPS_dps",
            "Pages", "Numbers", "Keynote", "Ai", "PSD", "Markdown"}));
    EXPECT_EQ(
        texts(list, "extension"), (std::vector<std::string>{"txt", "rtf", "xml", "docx", "xlsx", "pptx",
                                      "wps", "et", "dps", "pages", "numbers", "key", "ai", "psd", "md"}));
}

TEST_F(FactoryListsTest, TheTemplateResetPublishesAllFifteenBeforeTheOrdinaryPublishing) {
    EXPECT_EQ(sharedList(RuleCategory::createNewFile).size(), 15U);
    preferences_.publisher.publish(RuleCategory::createNewFile);
    EXPECT_EQ(sharedList(RuleCategory::createNewFile).size(), 9U);
}

TEST_F(FactoryListsTest, TheTemplateFolderHoldsEveryTemplateAndItsIcon) {
    const auto names = platform_.files.namesIn("/container/Templates/CreateNewFile");
    EXPECT_EQ(names.size(), 30U);
    for (const auto& row : factoryTemplates) {
        const auto extension = std::string(row.extension);
        for (const auto& name : {std::string(row.displayName) + "." + extension, extension + ".png"}) {
            EXPECT_EQ(std::count(names.begin(), names.end(), name), 1) << name;
        }
    }
}

TEST_F(FactoryListsTest, AMissingTemplateLeavesItsRecordAndTheOthersFiles) {
    platform_.files.files.erase("/resources/Word.docx");
    preferences_.factory.reset(RuleCategory::createNewFile);
    EXPECT_EQ(localList(RuleCategory::createNewFile).size(), 15U);
    EXPECT_EQ(platform_.files.namesIn("/container/Templates/CreateNewFile").size(), 29U);
    EXPECT_EQ(platform_.systemLog.lines,
        std::vector<std::string>{"template files and icons that could not be copied: 1"});
}

TEST_F(FactoryListsTest, TheTemplateResetStoresPublishesRemovesCreatesAndCopiesInThisOrder) {
    platform_.log.clear();
    preferences_.factory.reset(RuleCategory::createNewFile);
    const auto& lines = platform_.log.lines();
    EXPECT_EQ(std::vector<std::string>(lines.begin(), lines.begin() + 11),
        (std::vector<std::string>{"local set pendingTemplateFiles", "local set arrOfCreateNewFile",
            "local synchronise", "shared open H7Q2ZK5RX9.org.halvane.Tarnwick",
            "shared set arrOfCreateNewFile", "shared synchronise",
            "create folder /tmp/org.halvane.Tarnwick.undo-100",
            "move /container/Templates/CreateNewFile -> /tmp/org.halvane.Tarnwick.undo-100/1",
            "create folder /container/Templates/CreateNewFile",
            "copy /resources/TXT.txt -> /container/Templates/CreateNewFile/TXT.txt",
            "copy /resources/txt.png -> /container/Templates/CreateNewFile/txt.png"}));
}

TEST_F(FactoryListsTest, TheIconsAreTwentyAllOnEachNamedLikeItsImage) {
    const auto& list = localList(RuleCategory::customIcon);
    EXPECT_EQ(texts(list, "displayName"),
        (std::vector<std::string>{"App", "Apple", "Book", "Calendar", "Cloud", "Excel", "File", "Google",
            "Mac OS1", "Mac OS2", "Mac", "Mail", "Music", "Pages", "Picture", "PPT", "QQ", "Video", "WeChat",
            "Word"}));
    for (const auto& element : list) {
        const auto name = *element.dictionary()->at("displayName").string();
        EXPECT_EQ(element, PlistValue(PlistDictionary{{"enable", 1}, {"icon", tiffOf("tiff of " + name)},
                               {"displayName", name}, {"modified", "0"}}));
    }
}

struct ActionRow {
    const char* action;
    const char* image;
    const char* note;
};

constexpr std::array<ActionRow, 18> actionRows{
    {{"Cut", "Cut", "Initially just hide"}, {"Pin\u3001Annotation by Snapfin", "Snapfin", ""},
        {"Copy Path", "Copy Path", ""}, {"Delete directly", "Delete directly", ""},
        {"Open in Terminal", "Open in Terminal", ""}, {"Open in iTerm2", "Open in iTerm2", ""},
        {"Open in VSCode", "VSCode", ""}, {"Open in Sublime Text", "Sublime Text", ""},
        {"Open in Emacs", "Emacs", ""}, {"Screenshots by Snapfin", "Snapfin", "Snapfin >= 1.0.6"},
        {"Nohidden All Files in Path", "Nohidden All Files in Path", ""},
        {"Nohidden Selected Files", "Nohidden Selected Files", ""},
        {"Hidden All Files in Path", "Hidden All Files in Path", ""},
        {"Hidden Selected Files", "Hidden Selected Files", ""},
        {"Image to Icon", "Image to Icon", "Only for testing"},
        {"Translate by Baidu", "Translate by Baidu", "Three Text Services"},
        {"Translate by Google", "Translate by Google", "No need VPN"},
        {"Change to QR Code", "Change to QR Code", "Save in Pasteboard"}}};

TEST_F(FactoryListsTest, TheOtherItemsAreEighteenWithSevenFieldsEach) {
    const auto& list = localList(RuleCategory::others);
    ASSERT_EQ(list.size(), actionRows.size());
    for (std::size_t row = 0; row < list.size(); ++row) {
        const auto& expected = actionRows[row];
        EXPECT_EQ(list[row],
            PlistValue(
                PlistDictionary{{"enable", 1}, {"icon", tiffOf(std::string("tiff of ") + expected.image)},
                    {"displayName", expected.action}, {"nameModified", "0"}, {"noteModified", "0"},
                    {"Action", expected.action}, {"Note", expected.note}}))
            << row;
    }
}

TEST_F(FactoryListsTest, TheTargetsAreFourFoldersOfTheLoginNamesHomeWhateverTheRealOne) {
    platform_.folders.user = "otto";
    preferences_.factory.reset(RuleCategory::copyFilesTo);
    const auto& list = localList(RuleCategory::copyFilesTo);
    ASSERT_EQ(list.size(), 4U);
    EXPECT_EQ(list[0], PlistValue(PlistDictionary{
                           {"enable", 1}, {"realPath", "/Users/otto/Downloads"}, {"displayName", ""}}));
    EXPECT_EQ(
        texts(list, "realPath"), (std::vector<std::string>{"/Users/otto/Downloads", "/Users/otto/Pictures",
                                     "/Users/otto/Music", "/Users/otto/Movies"}));
}

TEST_F(FactoryListsTest, AMissingImageLeavesTheOthersListAsItWasWithALogLineThatNamesIt) {
    const auto before = localList(RuleCategory::others);
    platform_.images.missingNames.insert("Snapfin");
    preferences_.factory.reset(RuleCategory::others);
    EXPECT_EQ(localList(RuleCategory::others), before);
    EXPECT_EQ(list(RuleCategory::others).size(), 18U);
    ASSERT_EQ(platform_.systemLog.lines.size(), 1U);
    EXPECT_NE(platform_.systemLog.lines[0].find("Snapfin"), std::string::npos);
}

} // namespace
} // namespace tarnwick::testing
