#include "ConversionProbe.h"
#include "Pool.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace tarnwick::testing {
namespace {

class PlistConversionTest : public ::testing::Test {
    Pool pool_;
};

PlistData bytes(std::vector<std::uint8_t> content) {
    return PlistData(std::move(content));
}

TEST_F(PlistConversionTest, EveryKindComesBackAsItself) {
    const PlistValue values[] = {PlistValue("text"), PlistValue(7), PlistValue(0), PlistValue(1),
        PlistValue(true), PlistValue(false), PlistValue(2.5), PlistValue(1.0), PlistValue(PlistDate{1234.5}),
        PlistValue(bytes({0, 255, 7})), PlistValue(bytes({})), PlistValue(PlistArray{}),
        PlistValue(PlistDictionary{})};
    for (const auto& value : values) {
        const auto result = throughPlatform(value);
        ASSERT_TRUE(result);
        EXPECT_EQ(*result, value) << static_cast<int>(value.kind());
    }
}

TEST_F(PlistConversionTest, IntegerRealAndBooleanAreThreeKindsOfNumber) {
    EXPECT_EQ(numberKindOf(PlistValue(1)), "integer");
    EXPECT_EQ(numberKindOf(PlistValue(1.0)), "real");
    EXPECT_EQ(numberKindOf(PlistValue(true)), "boolean");
    EXPECT_EQ(numberKindOf(PlistValue(false)), "boolean");
}

TEST_F(PlistConversionTest, TheWidestIntegersStayWhole) {
    for (const auto number :
        {std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max()}) {
        EXPECT_EQ(throughPlatform(PlistValue(number)), PlistValue(number));
    }
    for (const auto number : {std::uint64_t{1} << 63, std::numeric_limits<std::uint64_t>::max()}) {
        EXPECT_EQ(throughPlatform(PlistLargeInteger{number}), PlistValue(PlistLargeInteger{number}));
    }
}

TEST_F(PlistConversionTest, NestedContainersComeBackWhole) {
    const PlistValue value(PlistDictionary{
        {"list", PlistArray{PlistDictionary{{"on", true}, {"count", 1}}, "text", bytes({1, 2})}},
        {"\u540d\u524d", 0.5}, {"", "empty key"}});
    EXPECT_EQ(throughPlatform(value), value);
}

TEST_F(PlistConversionTest, BytesAreSharedAndNeverCopied) {
    EXPECT_TRUE(sharesItsBytes(bytes(std::vector<std::uint8_t>(100'000, 7))));
}

TEST_F(PlistConversionTest, DataThatChangesLaterIsKeptAsItWas) {
    EXPECT_TRUE(keepsTheBytesOfMutableData());
}

TEST_F(PlistConversionTest, WhatNoPropertyListHoldsIsLeftOut) {
    EXPECT_EQ(arrayWithAForeignObject(), PlistValue(PlistArray{"text", 7}));
    EXPECT_EQ(dictionaryWithANumberForKey(), PlistValue(PlistDictionary{{"key", "two"}}));
}

TEST_F(PlistConversionTest, NilIsNoValue) {
    EXPECT_FALSE(valueOfNil());
}

} // namespace
} // namespace tarnwick::testing
