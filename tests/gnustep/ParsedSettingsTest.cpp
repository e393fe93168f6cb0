#include "ParsedSettingsProbe.h"
#include "Probe.h"

#include <gtest/gtest.h>

using namespace tarnwick::probe;

namespace {

constexpr std::size_t large = 100'000;

class ParsedSettings : public testing::Test {
protected:
    void SetUp() override { startUp(); }
};

} // namespace

TEST_F(ParsedSettings, LargeBytesParsedTwiceInARowGiveTheSameValues) {
    const auto bytes = serialised('a', large);
    const auto* first = parsed(bytes);
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(parsed(bytes), first);
    EXPECT_EQ(parsedText(bytes), std::string(large, 'a'));
}

TEST_F(ParsedSettings, OtherBytesOfTheSameLengthAreParsed) {
    EXPECT_EQ(parsedText(serialised('a', large)), std::string(large, 'a'));
    EXPECT_EQ(parsedText(serialised('b', large)), std::string(large, 'b'));
    EXPECT_EQ(parsedText(serialised('a', large)), std::string(large, 'a'));
}

TEST_F(ParsedSettings, DamagedBytesAreRefusedEachTimeAndForgetNothing) {
    const auto bytes = serialised('a', large);
    const auto* first = parsed(bytes);
    const auto damaged = bytes.substr(0, bytes.size() - 30);
    EXPECT_EQ(parsed(damaged), nullptr);
    EXPECT_EQ(parsed(damaged), nullptr);
    EXPECT_EQ(parsed(bytes), first);
}

TEST_F(ParsedSettings, SmallBytesAreParsedEachTime) {
    const auto bytes = serialised('a', 10);
    EXPECT_NE(parsed(bytes), parsed(bytes));
}

TEST_F(ParsedSettings, ValuesThatMayBeChangedAreMadeAnewEachTime) {
    const auto bytes = serialised('a', large);
    const auto* fixed = parsed(bytes);
    const auto* changeable = parsed(bytes, Containers::changeable);
    EXPECT_NE(changeable, fixed);
    EXPECT_NE(parsed(bytes, Containers::changeable), changeable);
}

TEST_F(ParsedSettings, WhatWasWrittenIsKnownWithoutParsing) {
    EXPECT_TRUE(readsBackTheWrittenObjects());
}
