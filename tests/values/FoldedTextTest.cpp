#include "values/FoldedText.h"

#include "values/Utf8.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace tarnwick::testing {
namespace {

using Pairs = std::vector<std::pair<std::string, std::string>>;

void expectSame(const Pairs& pairs) {
    for (const auto& [one, other] : pairs) {
        EXPECT_EQ(folded(one), folded(other)) << one << " and " << other;
    }
}

TEST(FoldedText, HasNoCapitalLetters) {
    EXPECT_EQ(folded("Word 97, PDF"), "word 97, pdf");
    expectSame({{"\u0391\u0398\u0397\u039D\u0391", "\u03B1\u03B8\u03B7\u03BD\u03B1"},
        {"\u041C\u041E\u0421\u041A\u0412\u0410", "\u043C\u043E\u0441\u043A\u0432\u0430"},
        {"\u0490", "\u0491"}, {"\u0531", "\u0561"}, {"\u00DE", "\u00FE"}, {"\u014A", "\u014B"},
        {"\uFF21", "\uFF41"}});
}

TEST(FoldedText, HasNoMarksOnItsLetters) {
    EXPECT_EQ(
        folded("\u00C4rger, \u00C9t\u00E9, Espa\u00F1a, \u0141\u00F3d\u017A"), "arger, ete, espana, lodz");
    EXPECT_EQ(folded("\u1EBE Vi\u1EC7t \u01D8 \u0219"), "e viet u s");
    expectSame({{"\u0386\u03CE", "\u03B1\u03C9"}, {"\u0419\u0451", "\u0438\u0435"}});
}

TEST(FoldedText, IsTheSameComposedAndDecomposed) {
    expectSame({{"\u00E4", "a\u0308"}, {"\u01D8", "u\u0308\u0301"}, {"\u1EC7", "e\u0323\u0302"},
        {"\u0439", "\u0438\u0306"}, {"\u0390", "\u03B9\u0308\u0301"}, {"\u00C5", "A\u030A"}});
}

TEST(FoldedText, WritesLettersOfTwoAsBoth) {
    EXPECT_EQ(folded("Stra\u00DFe"), "strasse");
    EXPECT_EQ(folded("STRA\u1E9EE"), "strasse");
    EXPECT_EQ(folded("\u00C6r\u00F8, \u0152uvre"), "aero, oeuvre");
}

TEST(FoldedText, HasOneKindOfI) {
    EXPECT_EQ(folded("I\u0130\u0131i"), "iiii");
    EXPECT_EQ(folded("I\u0307"), "i");
}

TEST(FoldedText, LeavesChineseAndJapaneseAsTheyAre) {
    for (const std::string text : {"\u4E2D\u6587\u6A21\u677F", "\u30C6\u30F3\u30D7\u30EC\u30FC\u30C8",
             "\u304C\u304E\u3050", "\u3071\u3079", "\U00020BB7", "\U0001F600"}) {
        EXPECT_EQ(folded(text), text);
    }
    EXPECT_NE(folded("\u304C"), folded("\u304B"));
}

TEST(FoldedText, PutsKanaAndTheirMarksTogether) {
    EXPECT_EQ(folded("\u304B\u3099\u3061\u3099\u3064\u3099\u3068\u3099"), "\u304C\u3062\u3065\u3069");
    EXPECT_EQ(folded("\u30CF\u3099\u30CF\u309A\u30DB\u309A\u30A6\u3099"), "\u30D0\u30D1\u30DD\u30F4");
    EXPECT_EQ(folded("\u30EF\u3099\u309D\u3099"), "\u30F7\u309E");
}

TEST(FoldedText, LeavesAMarkThatNoKanaTakes) {
    EXPECT_EQ(folded("\u3042\u3099\u304B\u309A"), "\u3042\u3099\u304B\u309A");
    EXPECT_EQ(folded("\u3099"), "\u3099");
}

TEST(FoldedText, PutsKoreanSyllablesTogether) {
    EXPECT_EQ(folded("\u1112\u1161\u11AB\u1100\u1173\u11AF"), "\uD55C\uAE00");
    EXPECT_EQ(folded("\uD55C\uAE00"), "\uD55C\uAE00");
}

TEST(FoldedText, LeavesSignsAndWhatIsNoText) {
    const std::string signs = "\u00D7 \u00F7 \u20AC 1/2 _-";
    EXPECT_EQ(folded(signs), signs);
    EXPECT_EQ(folded("A\xFF\xC3 B\xE4"), "a\xFF\xC3 b\xE4");
    EXPECT_EQ(folded(""), "");
}

TEST(FoldedText, FoldsNoFurtherAndStaysText) {
    for (char32_t character = 1; character <= 0x1FFFF; ++character) {
        if (character >= 0xD800 && character <= 0xDFFF) {
            continue;
        }
        std::string text;
        appendUtf8(text, character);
        const auto once = folded(text);
        ASSERT_TRUE(isValidUtf8(once)) << static_cast<std::uint32_t>(character);
        ASSERT_EQ(folded(once), once) << static_cast<std::uint32_t>(character);
    }
}

} // namespace
} // namespace tarnwick::testing
