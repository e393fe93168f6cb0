#include "values/PlistValue.h"

#include "tests/support/Printing.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tarnwick::testing {
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
    EXPECT_EQ(PlistValue(PlistLargeInteger{7}).largeInteger()->number, 7U);
    EXPECT_EQ(*PlistValue(0.5).real(), 0.5);
    EXPECT_EQ(*PlistValue(true).boolean(), true);
    EXPECT_EQ(PlistValue(PlistDate{3}).date()->secondsSinceReferenceDate, 3);
    EXPECT_EQ(PlistValue(7).string(), nullptr);
    EXPECT_EQ(PlistValue(7).array(), nullptr);
    EXPECT_EQ(PlistValue(7).largeInteger(), nullptr);
    EXPECT_EQ(PlistValue(PlistLargeInteger{7}).integer(), nullptr);
    EXPECT_NE(PlistValue(PlistLargeInteger{7}), PlistValue(7));
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
} // namespace
} // namespace tarnwick::testing
