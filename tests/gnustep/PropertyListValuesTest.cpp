#include "PropertyListProbe.h"

#include <gtest/gtest.h>

using namespace tarnwick::probe;

TEST(PropertyListValues, AreCopiedOnlyWhereTheyCanChange) {
    EXPECT_TRUE(keepsWhatCannotChange());
    EXPECT_TRUE(copiesWhatCanChange());
}

TEST(PropertyListValues, AreTheSameWhenTheyAreEqualAndOfOneKind) {
    for (const auto* list : {"<*I1>", "<*R1>", "<*BY>", "text", "<61>", "<*D2001-01-01 00:00:00 +0000>",
             "(a, (b))", "{ a = { b = c; }; }"}) {
        EXPECT_TRUE(areSame(list, list)) << list;
        EXPECT_FALSE(areSame(list, "(other)")) << list;
    }
    EXPECT_FALSE(areSame("<*I1>", "<*BY>"));
    EXPECT_FALSE(areSame("<*I1>", "<*R1>"));
    EXPECT_FALSE(areSame("(a, b)", "(a)"));
    EXPECT_FALSE(areSame("{ a = (<*BY>); }", "{ a = (<*I1>); }"));
    EXPECT_FALSE(areSame("{ a = b; }", "{ c = b; }"));
}

TEST(PropertyListValues, TellIntegersBeyondAllSignedOnesFromNegativeOnes) {
    EXPECT_FALSE(areSame("<*I18446744073709551615>", "<*I-1>"));
    EXPECT_TRUE(areSame("<*I18446744073709551615>", "<*I18446744073709551615>"));
}

TEST(PropertyListValues, TellZerosApartAndKnowWhatIsNoNumber) {
    EXPECT_FALSE(areSame("<*R0>", "<*R-0>"));
    EXPECT_TRUE(areSame("<*Rnan>", "<*Rnan>"));
    EXPECT_FALSE(areSame("<*Rnan>", "<*R0>"));
}

TEST(PropertyListValues, TellTextsApartThatOnlyLookTheSame) {
    EXPECT_FALSE(areSame("\"\\U00e9\"", "\"e\\U0301\""));
    EXPECT_TRUE(areSame("\"\\U00e9\"", "\"\\U00e9\""));
}
