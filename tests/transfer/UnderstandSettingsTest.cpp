#include "transfer/UnderstandSettings.h"
#include "prefs/RecordLayouts.h"
#include "tests/support/InMemoryImages.h"
#include "tests/support/StoresFixture.h"
#include "tests/transfer/Machine.h"

namespace tarnwick::testing {
namespace {

std::optional<ImportFault> faultOf(const PlistValue& document) {
    InMemoryImages images;
    const auto understood = understandSettings(document, images);
    const auto* fault = std::get_if<ImportFault>(&understood);
    return fault ? std::optional(*fault) : std::nullopt;
}

ImportPlan planOf(const PlistDictionary& document) {
    InMemoryImages images;
    auto understood = understandSettings(document, images);
    auto* plan = std::get_if<ImportPlan>(&understood);
    EXPECT_NE(plan, nullptr);
    return plan ? std::move(*plan) : ImportPlan();
}

PlistDictionary with(std::string_view key, const PlistValue& value) {
    auto document = bareDocument();
    document.insert_or_assign(std::string(key), value);
    return document;
}

LeftOut leftOut(LeftOutReason reason, const std::string& name) {
    return {reason, name, std::nullopt, 0};
}

PlistValue templateList(std::initializer_list<std::pair<const char*, const char*>> names) {
    PlistArray list;
    for (const auto& [name, extension] : names) {
        list.push_back(makeTemplateRecord(name, extension, "1", RecordOrigin::user).toPlist());
    }
    return list;
}

TEST(UnderstandSettingsTest, WhatIsNotThisProgramsIsForeign) {
    EXPECT_EQ(faultOf(PlistArray()), ImportFault::foreign);
    EXPECT_EQ(faultOf("text"), ImportFault::foreign);
    EXPECT_EQ(faultOf(PlistDictionary()), ImportFault::foreign);
    EXPECT_EQ(faultOf(with("application", "org.other.Program")), ImportFault::foreign);
    EXPECT_EQ(faultOf(with("application", 1)), ImportFault::foreign);
}

TEST(UnderstandSettingsTest, AFormatBeyondThisOneIsLaterWhateverElseIsThere) {
    EXPECT_EQ(faultOf(with("format", 2)), ImportFault::laterFormat);
    EXPECT_EQ(faultOf(PlistDictionary{{"application", "org.halvane.Tarnwick"}, {"format", 1000}}),
        ImportFault::laterFormat);
}

TEST(UnderstandSettingsTest, AMissingOrImpossiblePartIsDamage) {
    for (const auto* part : {"format", "switches", "templateFiles"}) {
        auto document = bareDocument();
        document.erase(part);
        EXPECT_EQ(faultOf(document), ImportFault::damaged) << part;
        EXPECT_EQ(faultOf(with(part, "text")), ImportFault::damaged) << part;
    }
    for (const auto& format : {PlistValue(0), PlistValue(-1), PlistValue(1.0), PlistValue(true)}) {
        EXPECT_EQ(faultOf(with("format", format)), ImportFault::damaged);
    }
}

TEST(UnderstandSettingsTest, ABareDocumentAsksForNothingAndLeavesNothingOut) {
    const auto plan = planOf(bareDocument());
    EXPECT_EQ(plan.version, "9.9");
    for (const auto category : allRuleCategories) {
        EXPECT_TRUE(plan.lists[category].empty());
    }
    EXPECT_TRUE(plan.switches.empty());
    EXPECT_TRUE(plan.templateFiles.empty());
    EXPECT_TRUE(plan.leftOut.empty());
}

TEST(UnderstandSettingsTest, AVersionOfAnotherKindIsNone) {
    EXPECT_EQ(planOf(with("version", 1)).version, "");
}

TEST(UnderstandSettingsTest, WhatIsNoRecordIsLeftOutWithItsPlace) {
    const RuleRecord record({{"unknown", 1.5}});
    const auto plan = planOf(with("arrOfOthers", PlistArray{1, record.toPlist(), "text", PlistArray()}));
    EXPECT_EQ(plan.lists[RuleCategory::others], (std::vector{record}));
    EXPECT_EQ(
        plan.leftOut, (std::vector{LeftOut{LeftOutReason::noRule, "arrOfOthers", RuleCategory::others, 1},
                          LeftOut{LeftOutReason::noRule, "arrOfOthers", RuleCategory::others, 3},
                          LeftOut{LeftOutReason::noRule, "arrOfOthers", RuleCategory::others, 4}}));
}

TEST(UnderstandSettingsTest, AListOfAnotherKindIsEmptyAndNamed) {
    const auto plan = planOf(with("arrOfCommonPath", "text"));
    EXPECT_TRUE(plan.lists[RuleCategory::commonPath].empty());
    EXPECT_EQ(plan.leftOut, (std::vector{leftOut(LeftOutReason::otherKind, "arrOfCommonPath")}));
}

TEST(UnderstandSettingsTest, UnknownPartsAndListsAreNamed) {
    auto document = with("arrOfColours", PlistArray{PlistDictionary()});
    document.emplace("prePathOfCreateNewFile", "/Users/anna");
    EXPECT_EQ(planOf(document).leftOut, (std::vector{leftOut(LeftOutReason::unknown, "arrOfColours"),
                                            leftOut(LeftOutReason::unknown, "prePathOfCreateNewFile")}));
}

TEST(UnderstandSettingsTest, SwitchesKeepTheirKindsAndOtherKeysStayOut) {
    const PlistDictionary switches{{"disableAutoNameOfCreateNewFile", "YES"}, {"enableCommonPath", 0},
        {"enableCopyFilesTo", PlistArray()}, {"enableImagetoIcon", true}, {"soundTipsOfNewFile", false}};
    const auto plan = planOf(with("switches", switches));
    EXPECT_EQ(plan.switches, (PlistDictionary{{"disableAutoNameOfCreateNewFile", "YES"},
                                 {"enableCommonPath", 0}, {"soundTipsOfNewFile", false}}));
    EXPECT_EQ(plan.leftOut, (std::vector{leftOut(LeftOutReason::otherKind, "enableCopyFilesTo"),
                                leftOut(LeftOutReason::unknown, "enableImagetoIcon")}));
}

TEST(UnderstandSettingsTest, ATemplateFileStaysInItsFolder) {
    const auto data = PlistValue(tiffOf("x"));
    auto document = with("arrOfCreateNewFile", templateList({{"..", "."}, {"../a", "txt"}, {"a", "txt"}}));
    document.insert_or_assign("templateFiles",
        PlistDictionary{{"", data}, {".", data}, {"..", data}, {"../a.txt", data}, {"/etc/passwd", data},
            {std::string("a\0.txt", 6), data}, {std::string(256, 'x'), data}, {"a.txt", data}});
    const auto plan = planOf(document);
    EXPECT_EQ(plan.templateFiles, (PlistDictionary{{"a.txt", data}}));
    ASSERT_EQ(plan.leftOut.size(), 7U);
    for (const auto& item : plan.leftOut) {
        EXPECT_EQ(item.reason, LeftOutReason::noFileName) << item.name;
    }
}

TEST(UnderstandSettingsTest, APackageIsTakenWholeOrNotAtAll) {
    const auto data = PlistValue(tiffOf("x"));
    auto document = with("arrOfCreateNewFile", templateList({{"a", "key"}, {"b", "key"}, {"c", "key"}}));
    const PlistDictionary good{{"Data", PlistDictionary{{"empty", PlistDictionary()}, {"x", data}}}};
    document.insert_or_assign("templateFiles",
        PlistDictionary{{"a.key", good}, {"b.key", PlistDictionary{{"Data", PlistDictionary{{"..", data}}}}},
            {"c.key", PlistDictionary{{"x", "text"}}}});
    const auto plan = planOf(document);
    EXPECT_EQ(plan.templateFiles, (PlistDictionary{{"a.key", good}}));
    EXPECT_EQ(plan.leftOut,
        (std::vector{leftOut(LeftOutReason::noFileName, "b.key"), leftOut(LeftOutReason::noFile, "c.key")}));
}

TEST(UnderstandSettingsTest, AFileOfNoTemplateIsLeftOut) {
    const auto data = PlistValue(tiffOf("x"));
    auto document = with("arrOfCreateNewFile", templateList({{"a", "txt"}}));
    document.insert_or_assign(
        "templateFiles", PlistDictionary{{"b.txt", data}, {"md.png", data}, {"txt.png", data}});
    const auto plan = planOf(document);
    EXPECT_EQ(plan.templateFiles, (PlistDictionary{{"txt.png", data}}));
    EXPECT_EQ(plan.leftOut,
        (std::vector{leftOut(LeftOutReason::nobodys, "b.txt"), leftOut(LeftOutReason::nobodys, "md.png")}));
}

TEST(UnderstandSettingsTest, RulesWithoutANameOrAFileAreCounted) {
    auto document = with("arrOfCreateNewFile", templateList({{"", "txt"}, {"a", "txt"}, {"b", ""}}));
    document.insert_or_assign("templateFiles", PlistDictionary{{"b", tiffOf("x")}});
    const auto plan = planOf(document);
    EXPECT_EQ(plan.oddities[RuleCategory::createNewFile],
        (ListOddities{.withoutName = 1, .unreadable = 0, .withoutPicture = 0, .withoutFile = 2}));
}

TEST(UnderstandSettingsTest, AFolderIsCalledAfterItselfWithoutAName) {
    const PlistArray folders{makeFolderRecord("/a", "").toPlist(), makeFolderRecord("", "").toPlist()};
    const auto plan = planOf(with("arrOfCopyFilesTo", folders));
    EXPECT_EQ(plan.oddities[RuleCategory::copyFilesTo].withoutName, 1U);
}

TEST(UnderstandSettingsTest, PicturesThatCannotBeShownAreCounted) {
    const auto user = RecordOrigin::user;
    const PlistArray icons{makeIconRecord(tiffOf("tiff a"), "a", user).toPlist(),
        makeIconRecord(tiffOf("no picture"), "b", user).toPlist(),
        makeIconRecord(tiffOf("no picture"), "c", user).toPlist(), PlistDictionary{{"displayName", "d"}}};
    const auto plan = planOf(with("arrOfCustomIcon", icons));
    EXPECT_EQ(plan.oddities[RuleCategory::customIcon].withoutPicture, 3U);
    EXPECT_EQ(plan.lists[RuleCategory::customIcon].size(), 4U);
}

TEST(UnderstandSettingsTest, FieldsThatReadAsMissingAreCountedAndKept) {
    const PlistArray odd{PlistDictionary{{"displayName", 5}, {"realPath", "/a"}}};
    const auto plan = planOf(with("arrOfCommonPath", odd));
    EXPECT_EQ(plan.oddities[RuleCategory::commonPath].unreadable, 1U);
    EXPECT_EQ(plan.lists[RuleCategory::commonPath].at(0).toPlist(), odd.at(0));
}

} // namespace
} // namespace tarnwick::testing
