#include "PropertyListProbe.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

using namespace tarnwick::probe;
using namespace std::string_literals;

namespace {

using Cases = std::vector<std::pair<std::string, std::string>>;

void expectElements(const Cases& cases) {
    for (const auto& [elements, description] : cases) {
        EXPECT_EQ(readElements(elements), description) << elements;
    }
}

/// Arrays and dictionaries in turn.
std::string nest(int depth) {
    std::string text;
    for (int level = 0; level < depth; ++level) {
        text += level % 2 == 0 ? "<array>" : "<dict><key>k</key>";
    }
    text += "<true/>";
    for (int level = depth - 1; level >= 0; --level) {
        text += level % 2 == 0 ? "</array>" : "</dict>";
    }
    return text;
}

} // namespace

TEST(PropertyListReading, MakesOfEachElementTheKindThatItNames) {
    expectElements({{"<string>a</string>", "\"a\""}, {"<integer>1</integer>", "1"},
        {"<real>1</real>", "real 1"}, {"<true/>", "true"}, {"<false></false>", "false"},
        {"<data>YQ==</data>", "<61>"}, {"<date>2001-01-01T00:00:01Z</date>", "date 1"}, {"<array/>", "()"},
        {"<dict/>", "{}"}, {"<dict><key>k</key><array><dict/></array></dict>", "{\"k\": ({})}"}});
    EXPECT_EQ(readList("<?xml version='1.0'?><true/>"), "true");
}

TEST(PropertyListReading, KeepsWholeIntegersUpToThe64thPowerOfTwo) {
    expectElements({{"<integer>9223372036854775807</integer>", "9223372036854775807"},
        {"<integer>9223372036854775808</integer>", "9223372036854775808"},
        {"<integer>18446744073709551615</integer>", "18446744073709551615"},
        {"<integer>-9223372036854775808</integer>", "-9223372036854775808"},
        {"<integer> +0x1f\n</integer>", "31"}, {"<integer>-0</integer>", "0"}});
}

TEST(PropertyListReading, KeepsEachCharacterOfTexts) {
    expectElements({{"<string> a\r\nb&#13;\t</string>", R"(" a\u000ab\u000d\u0009")"},
        {"<string>&lt;&amp;&#x1F5C2;</string>", R"("<&\ud83d\uddc2")"},
        {"<string>a<![CDATA[<b>]]><!-- c -->d</string>", R"("a<b>d")"},
        {"<string>\\U0041 \\UD83D\\UDDC2</string>", R"("\u005cU0041 \u005cUD83D\u005cUDDC2")"},
        {"<string>\uFEFFmark</string>", R"("\ufeffmark")"},
        {"<dict><key>\uFEFFk</key><true/></dict>", R"({"\ufeffk": true})"}});
}

TEST(PropertyListReading, TakesTheLastOfEqualKeys) {
    expectElements({{"<dict><key>k</key><true/><key>k</key><false/></dict>", "{\"k\": false}"}});
}

TEST(PropertyListReading, KnowsTheEncodingsOfXML) {
    const auto list = "<plist><string>\xE9</string></plist>"s;
    EXPECT_EQ(readList("<?xml version='1.0' encoding='ISO-8859-1'?>" + list), R"("\u00e9")");
    EXPECT_EQ(readList("\xFF\xFE<\0t\0r\0u\0e\0/\0>\0"s), "true");
    EXPECT_EQ(readList("\xEF\xBB\xBF \n<?xml version='1.0'?><plist><true/></plist>"),
        "damaged: no well-formed XML in line 2");
    EXPECT_EQ(readList("\xEF\xBB\xBF<?xml version='1.0'?><plist><true/></plist>"), "true");
    EXPECT_EQ(readList(" \n<?xml version='1.0'?><plist><true/></plist>"), "true");
}

TEST(PropertyListReading, RefusesNumbersDatesAndDataThatAreNone) {
    for (const auto* leaf :
        {"<integer/>", "<integer>1.5</integer>", "<integer>18446744073709551616</integer>",
            "<integer>-9223372036854775809</integer>", "<integer>0x</integer>", "<integer>- 1</integer>",
            "<real/>", "<real>a</real>", "<real>1,5</real>", "<real>--1</real>", "<real>1e999</real>",
            "<date>2001-02-29T00:00:00Z</date>", "<date>2001-01-01T24:00:00Z</date>",
            "<date>2001-01-01</date>", "<date>0000-01-01T00:00:00Z</date>", "<data>YQ=</data>",
            "<data>Y</data>", "<data>Y=Q=</data>", "<data>YQ==YQ==</data>", "<data>Y*==</data>"}) {
        EXPECT_EQ(readElements(leaf), "damaged: a value that is none of its kind in line 1") << leaf;
    }
    EXPECT_EQ(readElements("<true>yes</true>"), "damaged: text in a boolean in line 1");
}

TEST(PropertyListReading, RefusesElementsOutOfPlace) {
    expectElements(
        {{"", "damaged: no value in line 1"}, {"<true/><false/>", "damaged: a value out of place in line 1"},
            {"<dict><true/></dict>", "damaged: a value out of place in line 1"},
            {"<dict><key>k</key></dict>", "damaged: a key without a value in line 1"},
            {"<dict><key>k</key><key>l</key></dict>", "damaged: a key out of place in line 1"},
            {"<array><key>k</key></array>", "damaged: a key out of place in line 1"},
            {"<string><string/></string>", "damaged: an element inside a value in line 1"},
            {"<plist><true/></plist>", "damaged: a list inside the list in line 1"},
            {"<set/>", "damaged: an unknown element in line 1"},
            {"<a:true xmlns:a='b'/>", "damaged: an unknown element in line 1"},
            {"\n<array>\nx<true/></array>", "damaged: text between the values in line 3"}});
}

TEST(PropertyListReading, RefusesWhatIsNoXML) {
    const auto damaged = "damaged: no well-formed XML in line 1"s;
    for (const auto& elements :
        {"<array>"s, "<true>"s, "<string>\xC1\x81</string>"s, "<string>\xFF</string>"s,
            "<string>\xED\xA0\x80</string>"s, "<string>\x01</string>"s, "<string>&#0;</string>"s,
            "<string>&#xD800;</string>"s, "<string>a]]>b</string>"s, "<string>&a;</string>"s, "<true/>\0"s}) {
        EXPECT_EQ(readElements(elements), damaged) << elements;
    }
    EXPECT_EQ(readList("<plist><true/></plist>\0more"s), damaged);
}

TEST(PropertyListReading, RefusesEntities) {
    const auto head = "<!DOCTYPE plist PUBLIC 'a' 'b'"s;
    EXPECT_EQ(
        readList(head + "><plist><string>&c;</string></plist>"), "damaged: an unknown entity in line 1");
    EXPECT_EQ(readList(head + " [<!ENTITY c 'd'>]><plist><string>&c;</string></plist>"),
        "damaged: an entity of its own in line 1");
}

TEST(PropertyListReading, EndsAtTwoHundredContainersOneInTheOther) {
    EXPECT_EQ(readElements(nest(200)).substr(0, 8), "({\"k\": (");
    EXPECT_EQ(readElements(nest(201)), "damaged: containers that nest too deep in line 1");
    EXPECT_EQ(readElements(nest(200'000)), "damaged: containers that nest too deep in line 1");
}

TEST(PropertyListReading, MakesWhatMayBeChangedWhereItIsAskedTo) {
    EXPECT_EQ(changeableParts(Containers::fixed), "/ / ");
    EXPECT_EQ(changeableParts(Containers::changeable), "array dictionary / array text data dictionary / ");
}
