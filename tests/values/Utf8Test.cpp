#include "values/Utf8.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace tarnwick::testing {
namespace {

/// `codePoint` in a form of `length` bytes, whether it needs that many or not.
std::string encoded(std::uint32_t codePoint, int length) {
    if (length == 1) {
        return {static_cast<char>(codePoint)};
    }
    std::string bytes;
    for (; length > 1; --length) {
        bytes.insert(bytes.begin(), static_cast<char>(0x80U | (codePoint & 0x3FU)));
        codePoint >>= 6U;
        if (length == 2) {
            const auto marks = bytes.size() == 1 ? 0xC0U : bytes.size() == 2 ? 0xE0U : 0xF0U;
            bytes.insert(bytes.begin(), static_cast<char>(marks | codePoint));
        }
    }
    return bytes;
}

int neededLength(std::uint32_t codePoint) {
    return codePoint < 0x80 ? 1 : codePoint < 0x800 ? 2 : codePoint < 0x10000 ? 3 : 4;
}

bool isSurrogate(std::uint32_t codePoint) {
    return codePoint >= 0xD800 && codePoint <= 0xDFFF;
}

TEST(Utf8FormsTest, EveryCharacterIsValidInItsShortestFormAndNoSurrogateIs) {
    for (std::uint32_t codePoint = 0; codePoint <= 0x10FFFF; ++codePoint) {
        ASSERT_EQ(isValidUtf8(encoded(codePoint, neededLength(codePoint))), !isSurrogate(codePoint))
            << codePoint;
    }
}

TEST(Utf8FormsTest, NoCharacterIsValidInALongerFormThanItNeeds) {
    for (std::uint32_t codePoint = 0; codePoint <= 0xFFFF; ++codePoint) {
        for (int length = neededLength(codePoint) + 1; length <= 4; ++length) {
            ASSERT_FALSE(isValidUtf8(encoded(codePoint, length))) << codePoint << " in " << length;
        }
    }
}

TEST(Utf8FormsTest, NothingAboveTheLastCharacterIsValid) {
    for (std::uint32_t codePoint = 0x110000; codePoint <= 0x1FFFFF; codePoint += 61) {
        ASSERT_FALSE(isValidUtf8(encoded(codePoint, 4))) << codePoint;
    }
}

TEST(Utf8FormsTest, ACharacterThatIsCutOffIsNotValid) {
    for (const std::string text : {"\u00FC", "\u3001", "\U0001F600"}) {
        for (std::size_t size = 1; size < text.size(); ++size) {
            EXPECT_FALSE(isValidUtf8("a" + text.substr(0, size)));
            EXPECT_FALSE(isValidUtf8(text.substr(0, size) + "a"));
        }
    }
}

TEST(Utf8CharactersTest, AreTakenOffOneByOne) {
    const std::string text = "a\u00FC\u3001\U0001F600";
    std::string_view rest = text;
    std::string again;
    for (const char32_t expected : {U'a', U'\u00FC', U'\u3001', U'\U0001F600'}) {
        EXPECT_EQ(takeCharacter(rest), expected);
        appendUtf8(again, expected);
    }
    EXPECT_EQ(rest, "");
    EXPECT_EQ(again, text);
}

TEST(Utf8CharactersTest, AreNotTakenWhereThereIsNone) {
    std::string_view malformed = "\xE3\x80z";
    EXPECT_EQ(takeCharacter(malformed), std::nullopt);
    EXPECT_EQ(malformed.size(), 3U);
}

TEST(Utf8CharactersTest, AreWrittenAsTheyAreRead) {
    for (char32_t character = 0; character <= 0x10FFFF; character += 7) {
        if (character >= 0xD800 && character <= 0xDFFF) {
            continue;
        }
        std::string text;
        appendUtf8(text, character);
        std::string_view rest = text;
        ASSERT_EQ(takeCharacter(rest), character);
        ASSERT_TRUE(rest.empty()) << static_cast<std::uint32_t>(character);
    }
}

TEST(Utf8Test, TheLastCharacterBeginsWhereItsFirstByteIs) {
    EXPECT_EQ(startOfLastCharacter(""), 0U);
    EXPECT_EQ(startOfLastCharacter("a"), 0U);
    EXPECT_EQ(startOfLastCharacter("ab"), 1U);
    EXPECT_EQ(startOfLastCharacter("a\u00E9"), 1U);
    EXPECT_EQ(startOfLastCharacter("\u00E9\u4E2D"), 2U);
    EXPECT_EQ(startOfLastCharacter("\u4E2D\U0001F600"), 3U);
    EXPECT_EQ(startOfLastCharacter("\U0001F600"), 0U);
}

TEST(Utf8FormsTest, AcceptsWellFormedTextOfEveryLength) {
    for (const auto* text :
        {"", "plain", "\u00FC", "\u3001", "\U0001F600", "\u007F\u0080\u07FF\u0800\uFFFF\U0010FFFF"}) {
        EXPECT_TRUE(isValidUtf8(text)) << text;
    }
    EXPECT_TRUE(isValidUtf8(std::string_view("a\0b", 3)));
}

TEST(Utf8FormsTest, RefusesMalformedBytes) {
    for (const auto* text :
        {"\x80", "\xC0\x80", "\xC1\xBF", "\xC3", "\xE0\x80\x80", "\xED\xA0\x80", "\xF0\x80\x80\x80",
            "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xE3\x80", "\xE3\x80\x28", "ok\xFF"}) {
        EXPECT_FALSE(isValidUtf8(text)) << text;
    }
}

} // namespace
} // namespace tarnwick::testing
