#include "PropertyListProbe.h"

#include <gtest/gtest.h>

using namespace tarnwick::probe;

namespace {

constexpr std::size_t large = 100'000;

} // namespace

TEST(KnownLists, LargeBytesParsedTwiceInARowGiveTheSameValues) {
    const auto bytes = serialised('a', large);
    const auto* first = parsed(bytes);
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(parsed(bytes), first);
    EXPECT_EQ(parsedText(bytes), std::string(large, 'a'));
}

TEST(KnownLists, OtherBytesOfTheSameLengthAreParsed) {
    EXPECT_EQ(parsedText(serialised('a', large)), std::string(large, 'a'));
    EXPECT_EQ(parsedText(serialised('b', large)), std::string(large, 'b'));
    EXPECT_EQ(parsedText(serialised('a', large)), std::string(large, 'a'));
}

TEST(KnownLists, DamagedBytesAreRefusedEachTimeAndForgetNothing) {
    const auto bytes = serialised('a', large);
    const auto* first = parsed(bytes);
    const auto damaged = bytes.substr(0, bytes.size() - 30);
    EXPECT_EQ(parsed(damaged), nullptr);
    EXPECT_EQ(parsed(damaged), nullptr);
    EXPECT_EQ(parsed(bytes), first);
}

TEST(KnownLists, SmallBytesAreParsedEachTime) {
    const auto bytes = serialised('a', 10);
    EXPECT_NE(parsed(bytes), parsed(bytes));
}

TEST(KnownLists, ValuesThatMayBeChangedAreMadeAnewEachTime) {
    const auto bytes = serialised('a', large);
    const auto* fixed = parsed(bytes);
    const auto* changeable = parsed(bytes, Containers::changeable);
    EXPECT_NE(changeable, fixed);
    EXPECT_NE(parsed(bytes, Containers::changeable), changeable);
}

TEST(KnownLists, AreTwoOfWhichTheOlderIsForgotten) {
    const auto one = serialised('1', large);
    const auto other = serialised('2', large);
    const auto* first = parsed(one);
    const auto* second = parsed(other);
    EXPECT_EQ(parsed(one), first);
    EXPECT_EQ(parsed(other), second);
    parsedText(serialised('3', large));
    EXPECT_EQ(parsed(other), second);
    EXPECT_NE(parsed(one), first);
}

TEST(KnownLists, WhatWasWrittenIsKnownWithoutParsing) {
    EXPECT_TRUE(readsBackTheWrittenObjects());
}

TEST(KnownLists, WhatWasWrittenIsReadAsItWasThen) {
    EXPECT_TRUE(readsBackWhatWasWrittenAndNotWhatChanged());
}

TEST(KnownLists, WhatXMLCannotHoldIsReadAsTheFileHasIt) {
    EXPECT_TRUE(readsAnewWhatXMLCannotHold());
}
