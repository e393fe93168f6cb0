#include "prefs/RecordLayouts.h"
#include "tests/support/SettingsFixture.h"
#include "transfer/SettingsDocument.h"

namespace tarnwick::testing {
namespace {

const std::string place = "/chosen/Settings.plist";

class ExportSettingsTest : public SettingsFixture {
protected:
    void launch() {
        platform_.files.folders.insert("/chosen");
        SettingsFixture::launch();
        platform_.panels.alerts.clear();
    }
    PlistDictionary exported() {
        controller_.transfer().exportSettings();
        platform_.panels.confirm({place});
        const auto* value = platform_.contents.listAt(place);
        return value && value->dictionary() ? *value->dictionary() : PlistDictionary();
    }
    static PlistDictionary part(const PlistDictionary& document, std::string_view key) {
        const auto* part = document.at(std::string(key)).dictionary();
        return part ? *part : PlistDictionary();
    }
    void addFile(const std::string& name, const std::string& content) {
        platform_.files.files[templateFolder + "/" + name] = content;
    }
    static PlistValue bytes(const std::string& text) { return tiffOf(text); }
};

TEST_F(ExportSettingsTest, TheFileIsNamedAfterTheDay) {
    launch();
    controller_.transfer().exportSettings();
    const SavePanelRequest request{"Tarnwick Settings 2023-03-08.plist", "plist",
        "Choose where the file with all your settings goes.", "Export", "/Users/anna/Documents"};
    EXPECT_EQ(platform_.panels.saveRequests, std::vector{request});
}

TEST_F(ExportSettingsTest, TheFileIsNamedInTheUsersLanguage) {
    platform_.bundle.texts["Tarnwick Settings"] = "Tarnwick-Einstellungen";
    launch();
    controller_.transfer().exportSettings();
    EXPECT_EQ(platform_.panels.saveRequests.back().name, "Tarnwick-Einstellungen 2023-03-08.plist");
}

TEST_F(ExportSettingsTest, ThePanelsBeginWhereTheLastFileOfSettingsWas) {
    launch();
    auto& panels = platform_.panels;
    controller_.transfer().importSettings();
    EXPECT_EQ(panels.requests.back().startFolder, "/Users/anna/Documents");
    panels.confirm({"/Backups/old.plist"});
    controller_.transfer().exportSettings();
    EXPECT_EQ(panels.saveRequests.back().startFolder, "/Backups");
    panels.cancel();
    controller_.transfer().exportSettings();
    EXPECT_EQ(panels.saveRequests.back().startFolder, "/Backups");
    panels.confirm({"/Here/new.plist"});
    controller_.transfer().importSettings();
    EXPECT_EQ(panels.requests.back().startFolder, "/Here");
}

TEST_F(ExportSettingsTest, ItSaysWhatItIsWhatWroteItAndWhen) {
    launch();
    const auto document = exported();
    EXPECT_EQ(document.at("application"), PlistValue("org.halvane.Tarnwick"));
    EXPECT_EQ(document.at("format"), PlistValue(1));
    EXPECT_EQ(document.at("version"), PlistValue("1.2.3"));
    EXPECT_EQ(document.at("date"), PlistValue(PlistDate{700'000'000}));
}

TEST_F(ExportSettingsTest, ItHoldsTheListsAsTheyAreStored) {
    storeList(
        RuleCategory::commonPath, {RuleRecord({{"enable", "1"}, {"unknown", PlistArray{true, 1, 1.5}}})});
    launch();
    const auto document = exported();
    EXPECT_EQ(document.at("arrOfCommonPath"), local("arrOfCommonPath"));
    EXPECT_EQ(document.at("arrOfCreateNewFile"), local("arrOfCreateNewFile"));
    EXPECT_EQ(document.at("arrOfCustomIcon"), local("arrOfCustomIcon"));
    EXPECT_EQ(document.at("arrOfOthers"), local("arrOfOthers"));
}

TEST_F(ExportSettingsTest, AListThatIsNotStoredIsNotThere) {
    launch();
    EXPECT_EQ(exported().count("arrOfCopyFilesTo"), 0U);
}

TEST_F(ExportSettingsTest, EditorsThatWereAddedInMemoryAloneAreNotThere) {
    storeList(RuleCategory::others, {makeActionRecord(tiffOf("tiff"), "Cut", "")});
    launch();
    ASSERT_GT(controller_.rows().count(RuleCategory::others), 1);
    EXPECT_EQ(exported().at("arrOfOthers").array()->size(), 1U);
}

TEST_F(ExportSettingsTest, WhatWasKeptAsideIsNotThere) {
    platform_.preferences.local.insert_or_assign("arrOfCommonPath", PlistValue("no list"));
    platform_.preferences.local.insert_or_assign(
        "arrOfCopyFilesTo", PlistArray{1, makeFolderRecord("/a", "A").toPlist(), "text"});
    launch();
    const auto document = exported();
    EXPECT_EQ(document.count("arrOfCommonPath"), 0U);
    EXPECT_EQ(document.at("arrOfCopyFilesTo"), PlistValue(PlistArray{makeFolderRecord("/a", "A").toPlist()}));
}

TEST_F(ExportSettingsTest, ItHoldsTheSwitchesAsTheyAreStored) {
    platform_.preferences.local = {{"soundTipsOfNewFile", 0}, {"disableAutoNameOfCreateNewFile", "YES"},
        {"enableCommonPath", PlistArray()}};
    launch();
    const auto switches = part(exported(), "switches");
    EXPECT_EQ(switches.at("soundTipsOfNewFile"), PlistValue(0));
    EXPECT_EQ(switches.at("disableAutoNameOfCreateNewFile"), PlistValue("YES"));
    EXPECT_EQ(switches.at("enableIconOfOthers"), PlistValue(true));
    EXPECT_EQ(switches.count("soundTipsOfSendFilesTo"), 0U) << "was not seeded";
    EXPECT_EQ(switches.count("enableCommonPath"), 0U) << "is no switch's value";
    EXPECT_EQ(switches.size(), 13U);
}

TEST_F(ExportSettingsTest, AfterAFirstStartItHoldsFourteenSwitches) {
    launch();
    EXPECT_EQ(part(exported(), "switches").size(), 14U);
}

TEST_F(ExportSettingsTest, NothingElseIsThere) {
    platform_.preferences.local = {{"prePathOfCreateNewFile", "/Users/anna"}, {"NSWindow Frame", "0 0"},
        {"arrOfOthers.unreadable", 1}, {"pendingTemplateFiles", PlistArray()}};
    launch();
    std::set<std::string> keys;
    for (const auto& [key, value] : exported()) {
        keys.insert(key);
    }
    EXPECT_EQ(keys, (std::set<std::string>{"application", "arrOfCreateNewFile", "arrOfCustomIcon",
                        "arrOfOthers", "date", "format", "switches", "templateFiles", "version"}));
}

TEST_F(ExportSettingsTest, ItHoldsTheFilesOfTheTemplatesWholePackagesAndIcons) {
    storeList(RuleCategory::createNewFile, {makeTemplateRecord("Letter", "rtf", "1", RecordOrigin::user),
                                               makeTemplateRecord("Deck", "key", "1", RecordOrigin::user)});
    platform_.files.folders.insert(
        {templateFolder, templateFolder + "/Deck.key", templateFolder + "/Deck.key/Data"});
    addFile("Letter.rtf", "letter");
    addFile("rtf.png", "icon");
    addFile("Deck.key/Data/Index.zip", "index");
    addFile("stranger.txt", "nobody's");
    launch();
    EXPECT_EQ(part(exported(), "templateFiles"),
        (PlistDictionary{{"Letter.rtf", bytes("letter")}, {"rtf.png", bytes("icon")},
            {"Deck.key", PlistDictionary{{"Data", PlistDictionary{{"Index.zip", bytes("index")}}}}}}));
}

TEST_F(ExportSettingsTest, ATemplateWithoutExtensionLiesUnderItsBareNameOrWithADot) {
    storeList(RuleCategory::createNewFile, {makeTemplateRecord("Makefile", "", "1", RecordOrigin::user),
                                               makeTemplateRecord("Dotted", "", "1", RecordOrigin::user)});
    platform_.files.folders.insert(templateFolder);
    addFile("Makefile", "all:");
    addFile("Dotted.", "dot");
    launch();
    EXPECT_EQ(part(exported(), "templateFiles"),
        (PlistDictionary{{"Makefile", bytes("all:")}, {"Dotted.", bytes("dot")}}));
}

TEST_F(ExportSettingsTest, ANameThatLeadsOutOfTheFolderBringsNothingIn) {
    storeList(
        RuleCategory::createNewFile, {makeTemplateRecord("../outside", "txt", "1", RecordOrigin::user)});
    platform_.files.folders.insert(templateFolder);
    platform_.files.files["/container/Templates/outside.txt"] = "outside";
    launch();
    EXPECT_EQ(part(exported(), "templateFiles"), PlistDictionary());
}

TEST_F(ExportSettingsTest, ATemplateThatCannotBeReadIsLeftOutAndNamed) {
    storeList(RuleCategory::createNewFile, {makeTemplateRecord("Deck", "key", "1", RecordOrigin::user)});
    platform_.files.folders.insert({templateFolder, templateFolder + "/Deck.key"});
    platform_.files.links[templateFolder + "/Deck.key/link"] = "/elsewhere";
    launch();
    EXPECT_EQ(part(exported(), "templateFiles"), PlistDictionary());
    ASSERT_EQ(platform_.panels.alerts.size(), 1U);
    EXPECT_EQ(platform_.panels.alerts[0].messageText,
        "The settings were exported without these template files, which cannot be read:");
    EXPECT_EQ(platform_.panels.alerts[0].informativeText, "Deck.key");
}

TEST_F(ExportSettingsTest, OfManyTemplatesThatCannotBeReadTheFirstEightAreNamed) {
    std::vector<RuleRecord> records;
    platform_.files.folders.insert(templateFolder);
    for (const char letter : std::string("ABCDEFGHIJ")) {
        const std::string name(1, letter);
        records.push_back(makeTemplateRecord(name, "key", "1", RecordOrigin::user));
        platform_.files.folders.insert(templateFolder + "/" + name + ".key");
        platform_.files.links[templateFolder + "/" + name + ".key/link"] = "/elsewhere";
    }
    storeList(RuleCategory::createNewFile, records);
    launch();
    exported();
    ASSERT_EQ(platform_.panels.alerts.size(), 1U);
    EXPECT_EQ(platform_.panels.alerts[0].informativeText,
        "A.key\nB.key\nC.key\nD.key\nE.key\nF.key\nG.key\nH.key\nand 2 more");
}

TEST_F(ExportSettingsTest, ItChangesNothing) {
    launch();
    const auto local = platform_.preferences.local;
    const auto shared = platform_.preferences.shared;
    const auto files = platform_.files.files;
    exported();
    EXPECT_TRUE(platform_.files.remove(place));
    EXPECT_TRUE(platform_.preferences.local == local);
    EXPECT_TRUE(platform_.preferences.shared == shared);
    EXPECT_EQ(platform_.files.files, files);
    EXPECT_TRUE(platform_.panels.alerts.empty());
}

TEST_F(ExportSettingsTest, ACancelledPanelWritesNothing) {
    launch();
    controller_.transfer().exportSettings();
    platform_.panels.cancel();
    EXPECT_FALSE(platform_.files.exists(place));
}

TEST_F(ExportSettingsTest, AnEditInProgressIsAmongThem) {
    launch();
    window_.openEdit = [this] { controller_.textEdited("CustomIconName", 0, "Renamed"); };
    controller_.transfer().exportSettings();
    EXPECT_FALSE(window_.openEdit);
    window_.openEdit = [this] { controller_.textEdited("CustomIconName", 1, "Renamed too"); };
    platform_.panels.confirm({place});
    const auto* document = platform_.contents.listAt(place);
    const auto names = texts(*document->dictionary()->at("arrOfCustomIcon").array(), "displayName");
    EXPECT_EQ(names[0], "Renamed");
    EXPECT_EQ(names[1], "Renamed too");
}

class FailedExportTest : public ExportSettingsTest,
                         public ::testing::WithParamInterface<std::pair<ListFileWriting, const char*>> {};

TEST_P(FailedExportTest, SaysWhy) {
    launch();
    platform_.contents.trouble = GetParam().first;
    controller_.transfer().exportSettings();
    platform_.panels.confirm({place});
    ASSERT_EQ(platform_.panels.alerts.size(), 1U);
    EXPECT_EQ(platform_.panels.alerts[0].messageText, "The settings were not exported.");
    EXPECT_EQ(platform_.panels.alerts[0].informativeText, GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(Every, FailedExportTest,
    ::testing::Values(
        std::pair{ListFileWriting::tooLarge, "They are larger than 512 MB and could not be imported again."},
        std::pair{ListFileWriting::failed, "The file cannot be written there."}));

} // namespace
} // namespace tarnwick::testing
