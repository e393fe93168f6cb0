#include "prefs/PreferenceKeys.h"
#include "prefs/RecordLayouts.h"
#include "tests/transfer/Machine.h"

#include <algorithm>

namespace tarnwick::testing {
namespace {

constexpr long importButton = alertFirstButton;
constexpr long cancelButton = alertFirstButton + 1;
constexpr long exportFirstButton = alertFirstButton + 2;

class ImportSettingsTest : public ::testing::Test {
protected:
    ImportSettingsTest() { machine.launch(); }

    PlistDictionary folders() const {
        auto document = bareDocument();
        document.emplace("arrOfCopyFilesTo", PlistArray{makeFolderRecord("/a", "A").toPlist()});
        return document;
    }
    [[nodiscard]] PlistDictionary& local() { return machine.platform.preferences.local; }
    [[nodiscard]] PlistDictionary& shared() { return machine.platform.preferences.shared; }

    Machine untouched{PreparedState{"", [](InMemoryPlatform&) {}}};
    Machine machine;
    const std::string held =
        "/tmp/org.halvane.Tarnwick.undo-" + std::to_string(machine.platform.process.identifier());
};

TEST_F(ImportSettingsTest, OneListFileMayBeChosen) {
    machine.controller.transfer().importSettings();
    ASSERT_EQ(machine.platform.panels.requests.size(), 1U);
    const auto& request = machine.platform.panels.requests[0];
    EXPECT_EQ(request.allowedFileTypes, (std::vector<std::string>{"plist"}));
    EXPECT_FALSE(request.canChooseDirectories);
    EXPECT_FALSE(request.allowsMultipleSelection);
}

TEST_F(ImportSettingsTest, NothingChangesBeforeTheUserAgrees) {
    machine.platform.panels.answers = {cancelButton};
    machine.import(folders());
    EXPECT_EQ(machine.lastAlert().messageText, "Import these settings?");
    EXPECT_EQ(
        machine.lastAlert().buttons, (std::vector<std::string>{"Import", "Cancel", "Export First\u2026"}));
    EXPECT_TRUE(machine.isAs(untouched));
}

TEST_F(ImportSettingsTest, ACancelledPanelAsksNothing) {
    machine.controller.transfer().importSettings();
    machine.platform.panels.cancel();
    EXPECT_TRUE(machine.platform.panels.alerts.empty());
    EXPECT_TRUE(machine.isAs(untouched));
}

TEST_F(ImportSettingsTest, ThePresentSettingsMayBeExportedFirst) {
    const auto before = machine.exported();
    machine.platform.panels.answers = {exportFirstButton, importButton};
    machine.import(folders());
    ASSERT_TRUE(machine.platform.panels.isOpen());
    EXPECT_TRUE(machine.isAs(untouched));
    machine.platform.panels.confirm({"/kept"});
    const auto* kept = machine.platform.contents.listAt("/kept");
    ASSERT_NE(kept, nullptr);
    EXPECT_EQ(*kept, PlistValue(before));
    EXPECT_EQ(machine.platform.panels.alerts.size(), 2U) << "is asked again";
    EXPECT_EQ(local().at("arrOfCopyFilesTo"), folders().at("arrOfCopyFilesTo"));
}

TEST_F(ImportSettingsTest, AfterACancelledExportTheUserIsAskedAgain) {
    machine.platform.panels.answers = {exportFirstButton, cancelButton};
    machine.import(folders());
    machine.platform.panels.cancel();
    EXPECT_EQ(machine.platform.panels.alerts.size(), 2U);
    EXPECT_TRUE(machine.isAs(untouched));
}

TEST_F(ImportSettingsTest, AListThatTheFileLacksIsEmptyAndItsKeyThere) {
    machine.import(bareDocument());
    for (const auto category : allRuleCategories) {
        const std::string key(factsOf(category).listKey);
        EXPECT_EQ(local().at(key), PlistValue(PlistArray()));
        EXPECT_EQ(shared().at(key), PlistValue(PlistArray()));
        EXPECT_EQ(machine.controller.rows().count(category), 0);
    }
}

TEST_F(ImportSettingsTest, SwitchesReachTheSuiteByMirroringAlone) {
    auto document = bareDocument();
    document.insert_or_assign(
        "switches", PlistDictionary{{"soundTipsOfNewFile", 0}, {"newWindowOfOpenInTerminal", false},
                        {"enableCommonPath", true}});
    machine.import(document);
    EXPECT_EQ(local().at("soundTipsOfNewFile"), PlistValue(0));
    EXPECT_EQ(shared().at("soundTipsOfNewFile"), PlistValue(false));
    EXPECT_EQ(local().at("newWindowOfOpenInTerminal"), PlistValue(false));
    EXPECT_EQ(shared().at("newWindowOfOpenInTerminal"), PlistValue(true));
    EXPECT_EQ(local().count("enableMoveFilesTo"), 0U) << "the file lacks it";
    EXPECT_EQ(shared().at("enableMoveFilesTo"), PlistValue(false));
    const auto& lines = machine.platform.log.lines();
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "local set enableCommonPath"), 0) << "it is so already";
}

TEST_F(ImportSettingsTest, WhatIsNoPartOfAFileStaysAsItIs) {
    local().insert_or_assign("prePathOfCreateNewFile", PlistValue("/Users/anna"));
    local().insert_or_assign("enableImagetoIcon", PlistValue(false));
    const auto features = shared().at("arrOfEnableOther");
    machine.import(bareDocument());
    EXPECT_EQ(local().at("prePathOfCreateNewFile"), PlistValue("/Users/anna"));
    EXPECT_EQ(local().at("enableImagetoIcon"), PlistValue(false));
    EXPECT_EQ(shared().at("arrOfEnableOther"), features);
}

TEST_F(ImportSettingsTest, EachListIsStoredAndPublishedInTheOrderOfAnEditedRow) {
    machine.import(folders());
    const auto& lines = machine.platform.log.lines();
    const auto at = [&](const std::string& line) {
        const auto isIt = [&](const auto& logged) { return logged.ends_with(line); };
        return std::find_if(lines.begin(), lines.end(), isIt) - lines.begin();
    };
    EXPECT_LT(at("write tree " + held + "/1"), at("local remove soundTipsOfNewFile"));
    EXPECT_LT(at("local remove soundTipsOfNewFile"), at("local set arrOfCreateNewFile"));
    EXPECT_LT(at("local set arrOfCreateNewFile"), at("-> /container/Templates/CreateNewFile"));
    EXPECT_LT(at("-> /container/Templates/CreateNewFile"), at("reload createNewFile"));
    EXPECT_LT(at("reload createNewFile"), at("shared set arrOfCreateNewFile"));
    EXPECT_LT(at("local set arrOfCopyFilesTo"), at("shared set arrOfCopyFilesTo"));
    EXPECT_EQ(lines.back(), "disable remove others");
}

TEST_F(ImportSettingsTest, NoRowIsSelectedAfterwards) {
    machine.window.table(RuleCategory::createNewFile).selected = 0;
    machine.window.table(RuleCategory::createNewFile).canRemove = true;
    auto document = bareDocument();
    document.emplace(
        "arrOfCreateNewFile", PlistArray{makeTemplateRecord("a", "txt", "1", RecordOrigin::user).toPlist()});
    machine.import(document);
    EXPECT_EQ(machine.window.selectedRow(RuleCategory::createNewFile), -1);
    EXPECT_FALSE(machine.window.table(RuleCategory::createNewFile).canRemove);
}

TEST_F(ImportSettingsTest, AnEditInProgressEndsBeforeTheUserIsAsked) {
    machine.window.openEdit = [this] { machine.controller.textEdited("CustomIconName", 0, "Renamed"); };
    machine.platform.panels.answers = {cancelButton};
    machine.import(folders());
    EXPECT_FALSE(machine.window.openEdit);
    EXPECT_EQ(
        local().at("arrOfCustomIcon").array()->at(0).dictionary()->at("displayName"), PlistValue("Renamed"));
}

TEST_F(ImportSettingsTest, TemplateFilesThatCannotBeStoredRefuseAllOfIt) {
    machine.platform.files.failing.insert(held + "/1");
    machine.import(folders());
    EXPECT_EQ(machine.lastAlert().messageText, "Nothing was imported, and nothing has changed.");
    EXPECT_EQ(machine.lastAlert().informativeText, "Its template files cannot be stored.");
    EXPECT_TRUE(machine.isAs(untouched));
}

TEST_F(ImportSettingsTest, WithoutAContainerTheRestIsImported) {
    machine.platform.folders.container = std::nullopt;
    machine.import(folders());
    EXPECT_EQ(local().at("arrOfCopyFilesTo"), folders().at("arrOfCopyFilesTo"));
    EXPECT_EQ(local().count("pendingTemplateFiles"), 0U);
}

TEST_F(ImportSettingsTest, AllOfItIsOneStepOfUndo) {
    auto document = Machine(preparedStates().at(6)).exported();
    document.insert_or_assign(
        "switches", PlistDictionary{{"soundTipsOfNewFile", 0}, {"enableCommonPath", false}});
    machine.import(document);
    auto& history = machine.platform.undoHistory;
    EXPECT_EQ(history.undoNames(), (std::vector<std::string>{"Import of Settings"}));
    const auto imported = machine.exported();
    history.undo();
    EXPECT_EQ(PlistValue(machine.exported()), PlistValue(withEmptyLists(untouched.exported())));
    EXPECT_TRUE(machine.platform.files.namesIn("/container/Templates/CreateNewFile") ==
                untouched.platform.files.namesIn("/container/Templates/CreateNewFile"));
    EXPECT_EQ(shared().at("enableCommonPath"), PlistValue(true));
    EXPECT_EQ(shared().at("enableMoveFilesTo"), PlistValue(true));
    EXPECT_EQ(history.redoNames(), (std::vector<std::string>{"Import of Settings"}));
    history.redo();
    EXPECT_EQ(PlistValue(machine.exported()), PlistValue(imported));
    EXPECT_EQ(shared().at("enableCommonPath"), PlistValue(false));
}

struct Refusal {
    ListFileContent content;
    const char* text;
};

class RefusedImportTest : public ImportSettingsTest, public ::testing::WithParamInterface<Refusal> {};

TEST_P(RefusedImportTest, SaysWhyAndChangesNothing) {
    machine.import(GetParam().content);
    ASSERT_EQ(machine.platform.panels.alerts.size(), 1U);
    EXPECT_EQ(machine.lastAlert().messageText, "Nothing was imported, and nothing has changed.");
    EXPECT_EQ(machine.lastAlert().informativeText, GetParam().text);
    EXPECT_EQ(machine.lastAlert().buttons, (std::vector<std::string>{"OK"}));
    EXPECT_TRUE(machine.isAs(untouched));
}

INSTANTIATE_TEST_SUITE_P(Every, RefusedImportTest,
    ::testing::Values(Refusal{ListFileFault::unreadable, "The file cannot be read."},
        Refusal{ListFileFault::notRegular, "It is no regular file."},
        Refusal{ListFileFault::tooLarge, "The file is larger than 512 MB."},
        Refusal{ListFileFault::empty, "The file is empty."},
        Refusal{ListFileFault::foreign, "The file holds no settings of Tarnwick."},
        Refusal{ListFileFault::damaged, "The file is damaged."},
        Refusal{PlistValue(PlistDictionary{{"a", 1}}), "The file holds no settings of Tarnwick."},
        Refusal{PlistValue(PlistDictionary{{"application", "org.halvane.Tarnwick"}, {"format", 2}}),
            "The file was exported by a later version of Tarnwick."},
        Refusal{PlistValue(PlistDictionary{{"application", "org.halvane.Tarnwick"}, {"format", 1}}),
            "The file is damaged."}));

} // namespace
} // namespace tarnwick::testing
