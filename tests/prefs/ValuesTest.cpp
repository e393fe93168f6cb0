#include "prefs/RecordLayouts.h"
#include "prefs/RuleList.h"
#include "tests/support/Printing.h"
#include "values/PathText.h"

#include <gtest/gtest.h>

#include <limits>
#include <ostream>

namespace tarnwick {
namespace {

TEST(PlistValueTest, IntegerRealAndBooleanAreThreeValues) {
    EXPECT_NE(PlistValue(1), PlistValue(true));
    EXPECT_NE(PlistValue(1), PlistValue(1.0));
    EXPECT_NE(PlistValue(1), PlistValue("1"));
    EXPECT_EQ(PlistValue(1), PlistValue(std::int64_t{1}));
}

TEST(PlistValueTest, ARealOrDateThatIsNoNumberEqualsItself) {
    const auto none = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(PlistValue(none), PlistValue(none));
    EXPECT_NE(PlistValue(none), PlistValue(1.0));
    EXPECT_NE(PlistValue(1.0), PlistValue(none));
    EXPECT_EQ(PlistValue(PlistDate{none}), PlistValue(PlistDate{none}));
    EXPECT_EQ(PlistValue(0.0), PlistValue(-0.0));
}

TEST(PlistValueTest, EachKindGivesItsContentsAndNullForTheOthers) {
    EXPECT_EQ(*PlistValue("text").string(), "text");
    EXPECT_EQ(*PlistValue(7).integer(), 7);
    EXPECT_EQ(*PlistValue(0.5).real(), 0.5);
    EXPECT_EQ(*PlistValue(true).boolean(), true);
    EXPECT_EQ(PlistValue(PlistDate{3}).date()->secondsSinceReferenceDate, 3);
    EXPECT_EQ(PlistValue(7).string(), nullptr);
    EXPECT_EQ(PlistValue(7).array(), nullptr);
    EXPECT_EQ(PlistValue(7).dictionary(), nullptr);
    EXPECT_EQ(PlistValue(7).sharedDictionary(), nullptr);
    EXPECT_EQ(PlistValue(7).kind(), PlistValue::Kind::integer);
    EXPECT_EQ(PlistValue(PlistArray{}).kind(), PlistValue::Kind::array);
}

TEST(PlistValueTest, ContainersAreComparedByContents) {
    EXPECT_EQ(PlistValue(PlistArray{1, "a"}), PlistValue(PlistArray{1, "a"}));
    EXPECT_NE(PlistValue(PlistArray{1}), PlistValue(PlistArray{true}));
    EXPECT_EQ(PlistValue(PlistDictionary{{"k", 1}}), PlistValue(PlistDictionary{{"k", 1}}));
    EXPECT_NE(PlistValue(PlistDictionary{{"k", 1}}), PlistValue(PlistArray{}));
    EXPECT_NE(PlistValue(PlistArray{}), PlistValue(PlistDictionary{}));
}

TEST(PlistDataTest, CopiesShareTheirBytes) {
    const PlistData data({1, 2, 3});
    const auto copy = data;
    EXPECT_EQ(copy.bytes(), data.bytes());
    EXPECT_EQ(copy, data);
    EXPECT_NE(PlistData({1, 2}), data);
    EXPECT_NE(PlistData({1, 2, 4}), data);
    EXPECT_EQ(PlistData(), PlistData(std::vector<std::uint8_t>{}));
}

TEST(RuleListTest, ACopiedListSharesItsImages) {
    RuleList list(RuleCategory::customIcon);
    list.append(makeIconRecord(PlistData({1, 2, 3}), "A", RecordOrigin::user));
    const auto copy = list;
    const auto stored = copy.toPlist();
    const auto* bytes = list[0].data(field::icon).bytes();
    EXPECT_EQ(copy[0].with(field::enable, 0).data(field::icon).bytes(), bytes);
    EXPECT_EQ((*stored.array())[0].dictionary()->at("icon").data()->bytes(), bytes);
}

TEST(RuleListTest, AnInsertionPastTheEndAppends) {
    RuleList list(RuleCategory::others);
    list.insert(6, makeFolderRecord("/a", "a"));
    list.insert(0, makeFolderRecord("/b", "b"));
    EXPECT_EQ(list[0].text(field::displayName), "b");
    EXPECT_EQ(list[1].text(field::displayName), "a");
}

TEST(RuleListTest, OnlyRowsWithinTheListAreHeld) {
    RuleList list(RuleCategory::others);
    list.append(RuleRecord());
    EXPECT_TRUE(list.holds(0));
    EXPECT_FALSE(list.holds(1));
    EXPECT_FALSE(list.holds(-1));
    EXPECT_FALSE(list.empty());
}

struct FlagCase {
    PlistValue value;
    std::optional<bool> expected;
};

void PrintTo(const FlagCase& flag, std::ostream* stream) {
    tarnwick::PrintTo(flag.value, stream);
    *stream << " as " << (!flag.expected ? "none" : *flag.expected ? "on" : "off");
}

class FlagTest : public ::testing::TestWithParam<FlagCase> {};

TEST_P(FlagTest, ReadsByTheOneRule) {
    EXPECT_EQ(flagValue(GetParam().value), GetParam().expected);
    const RuleRecord record(PlistDictionary{{"enable", GetParam().value}});
    EXPECT_EQ(record.isEnabled(), GetParam().expected.value_or(false));
}

INSTANTIATE_TEST_SUITE_P(Every, FlagTest,
    ::testing::Values(FlagCase{"1", true}, FlagCase{"0", false}, FlagCase{1, true}, FlagCase{0, false},
        FlagCase{-5, true}, FlagCase{true, true}, FlagCase{false, false}, FlagCase{0.5, true},
        FlagCase{0.0, false}, FlagCase{"Y", true}, FlagCase{"yes", true}, FlagCase{"T", true},
        FlagCase{"true", true}, FlagCase{"no", false}, FlagCase{"N", false}, FlagCase{"", false},
        FlagCase{"   ", false}, FlagCase{"000", false}, FlagCase{" \t\n0012", true}, FlagCase{"+1", true},
        FlagCase{"-9", true}, FlagCase{"-0", false}, FlagCase{"+", false}, FlagCase{"--1", false},
        FlagCase{"0x1", false}, FlagCase{"0Y", true}, FlagCase{"x1", false},
        FlagCase{PlistArray{1}, std::nullopt}, FlagCase{PlistDictionary{}, std::nullopt},
        FlagCase{PlistData({1}), std::nullopt}, FlagCase{PlistDate{1}, std::nullopt},
        FlagCase{std::numeric_limits<std::int64_t>::min(), true}));

TEST(RuleRecordTest, AMissingFieldReadsAsFalseEmptyTextAndNoData) {
    const RuleRecord record;
    EXPECT_FALSE(record.flag(field::enableMainMenu));
    EXPECT_EQ(record.text(field::displayName), "");
    EXPECT_TRUE(record.data(field::icon).empty());
    EXPECT_EQ(record.value(field::note), nullptr);
}

TEST(RuleRecordTest, AFieldOfTheWrongTypeReadsAsMissing) {
    const RuleRecord record(
        PlistDictionary{{"displayName", 7}, {"icon", "no image"}, {"enable", PlistArray{}}});
    EXPECT_EQ(record.text(field::displayName), "");
    EXPECT_TRUE(record.data(field::icon).empty());
    EXPECT_FALSE(record.isEnabled());
}

TEST(RuleRecordTest, AChangeMakesACopyAndLeavesTheOriginal) {
    const auto record = makeFolderRecord("/a", "a");
    const auto changed = record.with(field::displayName, "b");
    EXPECT_EQ(record.text(field::displayName), "a");
    EXPECT_EQ(changed.text(field::displayName), "b");
    EXPECT_EQ(changed.text(field::realPath), "/a");
    EXPECT_FALSE(record == changed);
    EXPECT_TRUE(record == makeFolderRecord("/a", "a"));
}

struct ActionCase {
    const char* action;
    bool fixed;
    bool isProtected;
};

void PrintTo(const ActionCase& action, std::ostream* stream) {
    *stream << ::testing::PrintToString(std::string(action.action));
}

class ActionTest : public ::testing::TestWithParam<ActionCase> {};

TEST_P(ActionTest, IsKnownByItsExactIdentity) {
    const RuleRecord record(PlistDictionary{{"Action", GetParam().action}, {"displayName", "Cut"}});
    EXPECT_EQ(record.hasFixedAction(), GetParam().fixed);
    EXPECT_EQ(record.hasProtectedAction(), GetParam().isProtected);
}

INSTANTIATE_TEST_SUITE_P(Every, ActionTest,
    ::testing::Values(ActionCase{"Change to QR Code", true, true},
        ActionCase{"Translate by Google", true, true}, ActionCase{"Translate by Baidu", true, true},
        ActionCase{"Screenshots by Snapfin", false, true},
        ActionCase{"Pin\u3001Annotation by Snapfin", false, true},
        ActionCase{"Pin,Annotation by Snapfin", false, false},
        ActionCase{"translate by google", false, false}, ActionCase{"Translate by Google ", false, false},
        ActionCase{"Cut", false, false}, ActionCase{"", false, false}));

TEST(RuleRecordTest, TheTitleNeverMakesAnActionFixed) {
    EXPECT_FALSE(RuleRecord(PlistDictionary{{"displayName", "Translate by Google"}}).hasProtectedAction());
}

struct PathCase {
    const char* path;
    const char* last;
    const char* folder;
    const char* extension;
    const char* name;
};

void PrintTo(const PathCase& path, std::ostream* stream) {
    *stream << ::testing::PrintToString(std::string(path.path));
}

class PathTextTest : public ::testing::TestWithParam<PathCase> {};

TEST_P(PathTextTest, IsTakenApart) {
    const auto& expected = GetParam();
    EXPECT_EQ(lastPathComponent(expected.path), expected.last);
    EXPECT_EQ(withoutLastPathComponent(expected.path), expected.folder);
    EXPECT_EQ(pathExtension(expected.path), expected.extension);
    EXPECT_EQ(lastComponentWithoutExtension(expected.path), expected.name);
}

INSTANTIATE_TEST_SUITE_P(Every, PathTextTest,
    ::testing::Values(PathCase{"/a/b.txt", "b.txt", "/a", "txt", "b"},
        PathCase{"/a/Archive.tar.gz", "Archive.tar.gz", "/a", "gz", "Archive.tar"},
        PathCase{"/a/Makefile", "Makefile", "/a", "", "Makefile"},
        PathCase{"/a/.profile", ".profile", "/a", "", ".profile"}, PathCase{"/a/b.", "b.", "/a", "", "b."},
        PathCase{"/a/b/", "b", "/a", "", "b"}, PathCase{"/a", "a", "/", "", "a"},
        PathCase{"/", "/", "/", "", "/"}, PathCase{"name.md", "name.md", "", "md", "name"},
        PathCase{"", "", "", "", ""}));

} // namespace
} // namespace tarnwick
