#include "Pool.h"
#include "RecordObjectsProbe.h"

#include <gtest/gtest.h>

namespace tarnwick::testing {
namespace {

PlistValue record(const char* name) {
    return PlistDictionary{{"displayName", name}, {"enable", 1}};
}

class RecordObjectsTest : public ::testing::Test {
    Pool pool_;

protected:
    RecordObjectsProbe objects;
};

TEST_F(RecordObjectsTest, AListBecomesWhatItIs) {
    const auto one = record("one");
    const PlistValue list(PlistArray{one, "text", 7, one, PlistArray{one}, PlistDictionary{}});
    EXPECT_EQ(objects.throughPlatform(list), list);
    EXPECT_EQ(objects.throughPlatform(list), list);
    for (const auto& value : {PlistValue(true), PlistValue(PlistArray{}), one}) {
        EXPECT_EQ(objects.throughPlatform(value), value);
    }
}

TEST_F(RecordObjectsTest, WhatIsPublishedOfAListHasTheSameObjects) {
    const auto one = record("one");
    const auto two = record("two");
    const auto three = record("three");
    const auto list = objects.objectsIn(PlistArray{one, two, three});
    EXPECT_EQ(objects.objectsIn(PlistArray{one, three}), (std::vector{list[0], list[2]}));
    EXPECT_EQ(objects.objectsIn(PlistArray{three, two, one}), (std::vector{list[2], list[1], list[0]}));
}

TEST_F(RecordObjectsTest, ARecordThatIsReplacedHasAnObjectOfItsOwn) {
    const auto one = record("one");
    const auto two = record("two");
    const auto before = objects.objectsIn(PlistArray{one, two});
    const auto after = objects.objectsIn(PlistArray{one, record("two")});
    EXPECT_EQ(after[0], before[0]);
    EXPECT_NE(after[1], before[1]);
    EXPECT_EQ(objects.throughPlatform(PlistArray{record("other")}), PlistValue(PlistArray{record("other")}));
}

TEST_F(RecordObjectsTest, TheObjectOfARecordThatNobodyHasIsForgotten) {
    const auto kept = record("kept");
    const auto before = objects.objectsIn(PlistArray{kept, record("gone")});
    EXPECT_FALSE(objects.isForgotten(before[1]));
    objects.forgetUnused();
    EXPECT_FALSE(objects.isForgotten(before[0]));
    EXPECT_TRUE(objects.isForgotten(before[1]));
}

} // namespace
} // namespace tarnwick::testing
