#include "ConversionProbe.h"
#include "Pool.h"

#include <gtest/gtest.h>

namespace tarnwick::testing {
namespace {

using namespace std::string_view_literals;

class StringConversionTest : public ::testing::Test {
    Pool pool_;
};

constexpr unsigned replacement = 0xFFFD;

TEST_F(StringConversionTest, EveryKindOfTextComesBackUnchanged) {
    for (const auto text : {""sv, "plain"sv, "\u8868\u683c"sv, "e\u0301"sv, "\u05E9\u05DC\u05D5\u05DD"sv,
             "\U0001F5C2\uFE0F \U0001F468\u200D\U0001F469\u200D\U0001F467"sv, "two\nlines\ttab"sv,
             "\uFEFFmarked \uFEFF"sv, "\uFEFF"sv, "\uFEFF\uFEFF\u8868"sv}) {
        EXPECT_EQ(textThroughPlatform(text), text);
    }
}

TEST_F(StringConversionTest, NulsInsideATextStay) {
    constexpr auto text = "\0a\0b\0"sv;
    EXPECT_EQ(textThroughPlatform(text), text);
    EXPECT_EQ(unitsOf(text).size(), 5U);
}

TEST_F(StringConversionTest, BytesThatAreNoTextBecomeReplacementsAndTheRestStays) {
    EXPECT_EQ(unitsOf("a\xFF"
                      "b"sv),
        (std::vector<unsigned>{'a', replacement, 'b'}));
    EXPECT_EQ(unitsOf("\xC3"sv), std::vector<unsigned>{replacement});
    EXPECT_EQ(unitsOf("\x80\x80"sv), (std::vector<unsigned>{replacement, replacement}));
    EXPECT_EQ(unitsOf("\xE8\xA1"
                      "x\u683c"sv),
        (std::vector<unsigned>{replacement, replacement, 'x', 0x683C}));
}

TEST_F(StringConversionTest, CharactersBeyondTheBasicPlaneTakeTwoUnits) {
    EXPECT_EQ(unitsOf("\U0001F5C2"sv), (std::vector<unsigned>{0xD83D, 0xDDC2}));
}

TEST_F(StringConversionTest, ALongTextIsTheSameWhereverItsPortionsEnd) {
    for (std::size_t before = 250; before < 260; ++before) {
        const auto text =
            std::string(before, 'a') + "\U0001F5C2\u8868\u00E9" + std::string(300, 'z') + "\U0001F5C2";
        EXPECT_EQ(textThroughPlatform(text), text);
    }
}

TEST_F(StringConversionTest, HalvesOfCharactersBecomeReplacements) {
    EXPECT_EQ(textOfHalves(), "\uFFFD-\uFFFD");
}

TEST_F(StringConversionTest, NilIsEmpty) {
    EXPECT_EQ(textOfNil(), "");
}

} // namespace
} // namespace tarnwick::testing
