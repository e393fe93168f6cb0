#include "PropertyListProbe.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

using namespace tarnwick::probe;

TEST(PropertyListWriting, GivesEachKindItsElementAndSortsKeys) {
    EXPECT_EQ(writtenElements("{ b = (<*BY>, <*BN>, <*I7>, <*R2.5>, <6162>); a = {}; \"&\" = text; }"),
        "<dict>\n"
        "\t<key>&amp;</key>\n\t<string>text</string>\n"
        "\t<key>a</key>\n\t<dict>\n\t</dict>\n"
        "\t<key>b</key>\n\t<array>\n\t\t<true/>\n\t\t<false/>\n\t\t<integer>7</integer>\n"
        "\t\t<real>2.5</real>\n\t\t<data>\nYWI=\n</data>\n\t</array>\n"
        "</dict>\n");
}

TEST(PropertyListWriting, KeepsWholeIntegersUpToThe64thPowerOfTwo) {
    EXPECT_EQ(writtenElements("<*I18446744073709551615>"), "<integer>18446744073709551615</integer>\n");
    EXPECT_EQ(writtenElements("<*I-9223372036854775808>"), "<integer>-9223372036854775808</integer>\n");
}

TEST(PropertyListWriting, KeepsEachRealNumber) {
    EXPECT_EQ(writtenReal(0.1), "<real>0.1</real>\n");
    EXPECT_EQ(writtenReal(0.1 + 0.2), "<real>0.30000000000000004</real>\n");
    EXPECT_EQ(writtenReal(-0.0), "<real>-0</real>\n");
    EXPECT_EQ(writtenReal(std::numeric_limits<double>::max()), "<real>1.7976931348623157e+308</real>\n");
    EXPECT_EQ(writtenReal(std::numeric_limits<double>::infinity()), "<real>inf</real>\n");
}

TEST(PropertyListWriting, WritesDatesInWholeSeconds) {
    EXPECT_EQ(writtenDate(0), "<date>2001-01-01T00:00:00Z</date>\n");
    EXPECT_EQ(writtenDate(-0.5), "<date>2000-12-31T23:59:59Z</date>\n");
    EXPECT_EQ(writtenDate(-63113904000), "<date>0001-01-01T00:00:00Z</date>\n");
    EXPECT_EQ(writtenDate(252423993599), "<date>9999-12-31T23:59:59Z</date>\n");
}

TEST(PropertyListWriting, WritesTextsSoThatEveryReaderSeesTheSame) {
    EXPECT_EQ(writtenText(u"<a> & \"b\" 'c'\t\n\r"), "<string>&lt;a&gt; &amp; \"b\" 'c'\t\n&#13;</string>\n");
    EXPECT_EQ(writtenText(u"\u8868 \U0001F5C2 \\UD83D"), "<string>\u8868 \U0001F5C2 \\UD83D</string>\n");
    std::u16string text(511, u'a');
    EXPECT_EQ(
        writtenText(text + u"\U0001F5C2"), "<string>" + std::string(511, 'a') + "\U0001F5C2</string>\n");
}

TEST(PropertyListWriting, ReplacesCharactersThatXMLCannotHold) {
    const std::u16string text = {u'a', 0x1B, 0xFFFE, 0xD83D, u'b', 0xDDC2, 0xFFFF, 0};
    EXPECT_EQ(writtenText(text), "<string>a\uFFFD\uFFFD\uFFFDb\uFFFD\uFFFD\uFFFD</string>\n");
}

TEST(PropertyListWriting, RefusesWhatCouldNotBeReadAgain) {
    EXPECT_EQ(writtenForeignObject(), "refused: something is no property list");
    EXPECT_EQ(writtenNumberAsKey(), "refused: a key is no text that XML can hold");
    EXPECT_EQ(writtenDate(-63113904001), "refused: a date is not of the years 1 to 9999");
    EXPECT_EQ(writtenDate(252423993600), "refused: a date is not of the years 1 to 9999");
    EXPECT_EQ(writtenNest(200).substr(0, 8), "<array>\n");
    EXPECT_EQ(writtenNest(201), "refused: it nests too deep");
}
