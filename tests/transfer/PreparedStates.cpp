#include "tests/transfer/PreparedStates.h"

#include "prefs/PreferenceKeys.h"
#include "prefs/RecordLayouts.h"
#include "prefs/RuleList.h"

#include <limits>
#include <ostream>

namespace tarnwick::testing {
namespace {

void store(InMemoryPlatform& platform, RuleCategory category, std::vector<RuleRecord> records) {
    platform.preferences.local.insert_or_assign(
        std::string(factsOf(category).listKey), RuleList(category, std::move(records)).toPlist());
}

void addFile(InMemoryPlatform& platform, const std::string& name, const std::string& content) {
    for (const auto* folder : {"/container/Templates", templateFolder.c_str()}) {
        platform.files.folders.insert(folder);
    }
    platform.files.files[templateFolder + "/" + name] = content;
}

PlistDictionary everyKind() {
    return {{"integer", std::numeric_limits<std::int64_t>::min()}, {"real", 1.0}, {"flag", true},
        {"text", "1"}, {"date", PlistDate{86400}}, {"data", PlistData({0, 255})},
        {"array", PlistArray{PlistDictionary(), PlistArray{1, 1.0, true, "1"}}},
        {"dictionary", PlistDictionary{{"", ""}}}};
}

void afterTheFirstStart(InMemoryPlatform& platform) {
    platform.preferences.local.clear();
}

/// The three encodings of flags, absent fields, and fields that nobody knows.
void oddRecords(InMemoryPlatform& platform) {
    auto unknown = everyKind();
    unknown.emplace("displayName", "More");
    for (const auto category : allRuleCategories) {
        store(platform, category,
            {RuleRecord(), RuleRecord(unknown), RuleRecord({{"enable", "1"}, {"displayName", ""}}),
                RuleRecord({{"enable", true}, {"realPath", "Undefined"}, {"Action", "Cut"}}),
                RuleRecord({{"enable", 2.5}, {"displayName", "\u8868 \U0001F5C2\n<&>\"'"}})});
    }
}

/// Fields of kinds that read as missing.
void fieldsOfOtherKinds(InMemoryPlatform& platform) {
    for (const auto category : allRuleCategories) {
        store(platform, category,
            {RuleRecord(
                 {{"enable", PlistArray()}, {"displayName", 5}, {"extension", true}, {"icon", "none"}}),
                RuleRecord({{"enable", PlistDate{0}}, {"realPath", PlistData()}, {"modified", everyKind()},
                    {"Action", 1.5}, {"Note", PlistDictionary()}, {"icon", tiffOf("no picture")}})});
    }
}

/// A list key that holds no array, and elements that are no records: a start keeps them aside.
void noRecords(InMemoryPlatform& platform) {
    platform.preferences.local.insert_or_assign("arrOfCommonPath", PlistValue("no list"));
    platform.preferences.local.insert_or_assign("arrOfCopyFilesTo",
        PlistArray{1, makeFolderRecord("/a", "A").toPlist(), "text", PlistArray(), PlistDate{5}});
}

void absentLists(InMemoryPlatform& platform) {
    store(platform, RuleCategory::createNewFile, {makeTemplateRecord("TXT", "txt", "1", RecordOrigin::user)});
    addFile(platform, "TXT.txt", "text");
}

void emptyLists(InMemoryPlatform& platform) {
    for (const auto category : allRuleCategories) {
        store(platform, category, {});
    }
    addFile(platform, "stranger.txt", "nobody's");
}

/// Files, packages, one without its file, one without extension, icons, and files of nobody.
void templateFiles(InMemoryPlatform& platform) {
    const auto user = RecordOrigin::user;
    store(platform, RuleCategory::createNewFile,
        {makeTemplateRecord("Letter", "rtf", "1", user), makeTemplateRecord("Deck", "key", "0", user),
            makeTemplateRecord("Gone", "txt", "1", user), makeTemplateRecord("Makefile", "", "1", user),
            makeTemplateRecord("photo", "png", "1", user), makeTemplateRecord("x", "photo", "1", user),
            makeTemplateRecord("../../outside", "txt", "1", user),
            makeTemplateRecord("a/b", "txt", "1", user),
            makeTemplateRecord("\u8868\u683c e\u0301", "md", "1", user)});
    addFile(platform, "Letter.rtf", std::string("\0\xFF\n", 3));
    addFile(platform, "rtf.png", "icon");
    addFile(platform, "Makefile", "all:");
    addFile(platform, "photo.png", "photo");
    addFile(platform, "x.photo", "");
    addFile(platform, "\u8868\u683c e\u0301.md", "#");
    addFile(platform, "stranger.txt", "nobody's");
    for (const auto* folder : {"/Deck.key", "/Deck.key/Data", "/Deck.key/empty", "/Deck.key/Data/deep"}) {
        platform.files.folders.insert(templateFolder + folder);
    }
    addFile(platform, "Deck.key/Index.zip", "index");
    addFile(platform, "Deck.key/Data/deep/picture.png", "picture");
    platform.files.files["/container/Templates/outside.txt"] = "outside";
}

/// Every kind that a flag may have, an absent one, and kinds that are no flags.
void oddSwitches(InMemoryPlatform& platform) {
    auto& local = platform.preferences.local;
    local = {{"soundTipsOfNewFile", false}, {"enableCopyFilesTo", 0}, {"enableMoveFilesTo", "NO"},
        {"enableCommonPath", 1.0}, {"enableIconOfCreateNewFile", "Y"}, {"enableIconOfOthers", false},
        {"newWindowOfOpenInTerminal", PlistArray()}, {"newWindowOfOpenIniTerm2", false},
        {"deleteDirectlyRequiresConfirmation", PlistDictionary{{"a", 1}}},
        {"disableAutoNameOfCreateNewFile", true}};
}

/// What is not the file's to carry.
void whatStaysHere(InMemoryPlatform& platform) {
    auto& local = platform.preferences.local;
    local.insert_or_assign("prePathOfCreateNewFile", PlistValue("/Users/anna/Desktop"));
    local.insert_or_assign("NSWindow Frame Settings", PlistValue("0 0 1 1"));
    local.insert_or_assign("ShownEnableExtensionAlert", PlistValue(true));
    local.insert_or_assign("arrOfOthers.unreadable", PlistValue("kept"));
    store(platform, RuleCategory::copyFilesTo, {makeFolderRecord("/a", "A")});
}

/// The editors that older versions lacked are added in memory alone.
void anOlderList(InMemoryPlatform& platform) {
    store(platform, RuleCategory::others, {makeActionRecord(tiffOf("tiff of Cut"), "Cut", "")});
}

} // namespace

const std::vector<PreparedState>& preparedStates() {
    static const std::vector<PreparedState> states{{"AfterTheFirstStart", afterTheFirstStart},
        {"OddRecords", oddRecords}, {"FieldsOfOtherKinds", fieldsOfOtherKinds}, {"NoRecords", noRecords},
        {"AbsentLists", absentLists}, {"EmptyLists", emptyLists}, {"TemplateFiles", templateFiles},
        {"OddSwitches", oddSwitches}, {"WhatStaysHere", whatStaysHere}, {"AnOlderList", anOlderList}};
    return states;
}

void PrintTo(const PreparedState& state, std::ostream* stream) {
    *stream << state.name;
}

} // namespace tarnwick::testing
