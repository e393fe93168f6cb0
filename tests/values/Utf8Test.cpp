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

} // namespace
} // namespace tarnwick::testing
