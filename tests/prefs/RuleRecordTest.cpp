#include "prefs/RecordLayouts.h"
#include "prefs/RuleList.h"
#include "tests/support/Printing.h"
#include "values/PathText.h"

#include <gtest/gtest.h>

#include <limits>
#include <ostream>

namespace tarnwick {
namespace {

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
    ::testing::Values(FlagCase{PlistLargeInteger{std::numeric_limits<std::uint64_t>::max()}, true},
        FlagCase{"1", true}, FlagCase{"0", false}, FlagCase{1, true}, FlagCase{0, false}, FlagCase{-5, true},
        FlagCase{true, true}, FlagCase{false, false}, FlagCase{0.5, true}, FlagCase{0.0, false},
        FlagCase{"Y", true}, FlagCase{"yes", true}, FlagCase{"T", true}, FlagCase{"true", true},
        FlagCase{"no", false}, FlagCase{"N", false}, FlagCase{"", false}, FlagCase{"   ", false},
        FlagCase{"000", false}, FlagCase{" \t\n0012", true}, FlagCase{"+1", true}, FlagCase{"-9", true},
        FlagCase{"-0", false}, FlagCase{"+", false}, FlagCase{"--1", false}, FlagCase{"0x1", false},
        FlagCase{"0Y", true}, FlagCase{"x1", false}, FlagCase{PlistArray{1}, std::nullopt},
        FlagCase{PlistDictionary{}, std::nullopt}, FlagCase{PlistData({1}), std::nullopt},
        FlagCase{PlistDate{1}, std::nullopt}, FlagCase{std::numeric_limits<std::int64_t>::min(), true}));

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
} // namespace
} // namespace tarnwick
