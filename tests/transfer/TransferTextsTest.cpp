#include "ui/TransferTexts.h"

#include "tests/support/InMemoryBundle.h"

#include <gtest/gtest.h>

namespace tarnwick::testing {
namespace {

class TransferTextsTest : public ::testing::Test {
protected:
    [[nodiscard]] std::string summary() const { return importSummary(plan, present, bundle); }
    [[nodiscard]] bool says(const std::string& line) const {
        return ("\n" + summary() + "\n").find("\n" + line + "\n") != std::string::npos;
    }
    void leaveOut(LeftOutReason reason, const std::string& name) {
        plan.leftOut.push_back({reason, name, std::nullopt, 0});
    }

    CallLog log;
    InMemoryBundle bundle{log};
    ImportPlan plan;
    PerCategory<std::size_t> present{15U, 4U, 0U, 20U, 18U};
};

TEST_F(TransferTextsTest, EachPagesNumbersAreToldNowAndAfterwards) {
    plan.lists[RuleCategory::createNewFile].resize(3);
    EXPECT_TRUE(says("New File: 15 \u2192 3"));
    EXPECT_TRUE(says("Copy & Move To: 4 \u2192 0"));
    EXPECT_TRUE(says("Common Folders: 0 \u2192 0"));
    EXPECT_TRUE(says("Custom Icons: 20 \u2192 0"));
    EXPECT_TRUE(says("More Items: 18 \u2192 0"));
}

TEST_F(TransferTextsTest, TheVersionIsToldWhenItIsKnown) {
    EXPECT_EQ(summary().find("version"), std::string::npos);
    plan.version = "1.5";
    EXPECT_TRUE(says("It was exported by version 1.5."));
}

TEST_F(TransferTextsTest, OnlyListsThatAStartRefillsAreSaidToBeRefilled) {
    plan.lists[RuleCategory::others].resize(1);
    EXPECT_TRUE(says("Custom Icons will be empty. The next start fills it again."));
    EXPECT_FALSE(says("More Items will be empty. The next start fills it again."));
    EXPECT_FALSE(says("Common Folders will be empty. The next start fills it again."));
}

TEST_F(TransferTextsTest, WhatLooksOddIsToldPageByPage) {
    EXPECT_FALSE(says("This looks odd and is kept as it is:"));
    plan.oddities[RuleCategory::createNewFile] = {
        .withoutName = 1, .unreadable = 2, .withoutPicture = 0, .withoutFile = 4};
    plan.oddities[RuleCategory::customIcon].withoutPicture = 3;
    EXPECT_TRUE(says("This looks odd and is kept as it is:"));
    EXPECT_TRUE(says("New File, without a name: 1"));
    EXPECT_TRUE(says("New File, with fields that cannot be read: 2"));
    EXPECT_TRUE(says("New File, without a template file: 4"));
    EXPECT_TRUE(says("Custom Icons, without a picture that can be shown: 3"));
    EXPECT_EQ(summary().find("Custom Icons, without a name"), std::string::npos);
}

TEST_F(TransferTextsTest, WhatIsLeftOutIsNamedWithItsReason) {
    EXPECT_FALSE(says("This is left out:"));
    leaveOut(LeftOutReason::unknown, "arrOfColours");
    leaveOut(LeftOutReason::otherKind, "enableCommonPath");
    leaveOut(LeftOutReason::noFileName, "../a.txt");
    leaveOut(LeftOutReason::noFile, "b.txt");
    leaveOut(LeftOutReason::nobodys, "c.txt");
    plan.leftOut.push_back({LeftOutReason::noRule, "arrOfOthers", RuleCategory::others, 7});
    EXPECT_TRUE(says("This is left out:"));
    EXPECT_TRUE(says("\u201CarrOfColours\u201D: unknown"));
    EXPECT_TRUE(says("\u201CenableCommonPath\u201D: a value of another kind"));
    EXPECT_TRUE(says("\u201C../a.txt\u201D: a name that no template file can have"));
    EXPECT_TRUE(says("\u201Cb.txt\u201D: neither a file nor a folder"));
    EXPECT_TRUE(says("\u201Cc.txt\u201D: a file of no template"));
    EXPECT_TRUE(says("More Items, entry 7: no rule"));
}

TEST_F(TransferTextsTest, OfManyItemsTheFirstAreNamed) {
    for (int item = 0; item < 10; ++item) {
        leaveOut(LeftOutReason::unknown, "key" + std::to_string(item));
    }
    EXPECT_TRUE(says("\u201Ckey7\u201D: unknown"));
    EXPECT_FALSE(says("\u201Ckey8\u201D: unknown"));
    EXPECT_TRUE(says("and 2 more"));
}

TEST_F(TransferTextsTest, ANameOutOfAFileStaysInOneShortLine) {
    leaveOut(LeftOutReason::unknown, "a\nb\tc");
    leaveOut(LeftOutReason::unknown, std::string(59, 'x') + "\u8868\u8868\u8868");
    leaveOut(LeftOutReason::unknown, std::string(60, 'x'));
    EXPECT_TRUE(says("\u201Ca b c\u201D: unknown"));
    EXPECT_TRUE(says("\u201C" + std::string(59, 'x') + "\u8868\u2026\u201D: unknown"));
    EXPECT_TRUE(says("\u201C" + std::string(60, 'x') + "\u201D: unknown"));
}

TEST_F(TransferTextsTest, NoNameFillsAPlaceholder) {
    leaveOut(LeftOutReason::unknown, "%@ %1$@");
    EXPECT_TRUE(says("\u201C%@ %1$@\u201D: unknown"));
}

} // namespace
} // namespace tarnwick::testing
