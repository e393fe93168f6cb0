#include "PropertyListProbe.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

using namespace tarnwick::probe;
using namespace std::string_literals;

namespace {

std::string times(int count, const std::string& text) {
    std::string result;
    for (int index = 0; index < count; ++index) {
        result += text;
    }
    return result;
}

std::string number(std::uint64_t value, int width) {
    std::string bytes;
    for (int index = width - 1; index >= 0; --index) {
        bytes += static_cast<char>(value >> (8 * index));
    }
    return bytes;
}

/// A binary property list of these objects, the first on top, with two bytes a reference.
std::string binary(const std::vector<std::string>& objects) {
    std::string bytes = "bplist00";
    std::string table;
    for (const auto& object : objects) {
        table += number(bytes.size(), 4);
        bytes += object;
    }
    const auto start = bytes.size();
    return bytes + table + std::string(6, '\0') + number(4, 1) + number(2, 1) + number(objects.size(), 8) +
           number(0, 8) + number(start, 8);
}

/// Arrays of the next object, so often, one in the other, and a text at the end.
std::string chain(int depth, int references) {
    std::vector<std::string> objects;
    for (int level = 1; level <= depth; ++level) {
        objects.push_back(number(static_cast<std::uint64_t>(0xA0 + references), 1) +
                          times(references, number(static_cast<std::uint64_t>(level), 2)));
    }
    objects.emplace_back("\x51"
                         "a");
    return binary(objects);
}

const auto refused = "damaged: it nests too deep, or it is damaged"s;

} // namespace

TEST(ToolkitForms, AreStillRead) {
    EXPECT_EQ(
        readList(
            "{ a = (1, \"b \\U0041\", <6162>, <*I5>, <*BY>, <[YWI=]>); /* ( */ // (\n \"d\" = { e = f; }; }"),
        R"({"a": ("1", "b A", <6162>, 5, true, <6162>), "d": {"e": "f"}})");
    EXPECT_EQ(readList(chain(2, 1)), R"((("a")))");
    EXPECT_EQ(
        readList(binary({"\xD1"s + number(1, 2) + number(2, 2), "\x51k", "\x11\x01\x00"s})), R"({"k": 256})");
}

TEST(ToolkitForms, OfTextEndAtTwoHundredContainersOneInTheOther) {
    EXPECT_EQ(readList(times(200, "(") + times(200, ")")).substr(0, 3), "(((");
    EXPECT_EQ(readList(times(201, "(") + times(201, ")")), refused);
    EXPECT_EQ(readList(times(201, "{ a = ") + "b" + times(201, "; }")), refused);
    EXPECT_EQ(readList("{" + times(200'000, "{ = ") + "}"), refused);
}

TEST(ToolkitForms, OfTextHideNoContainersBehindQuotesAndComments) {
    const auto deep = times(100'000, "(");
    for (const auto* start : {"/* \" */", "// \"\n", "{ \"\\\"\" = ", "{ a /* \" */ = ", "(<ab>, ",
             "(<[ab//]>, ", "(<*I\"1\">, "}) {
        EXPECT_EQ(readList(start + deep), refused) << start;
    }
    // Texts and comments may have as many as they like.
    EXPECT_EQ(readList("(\"" + deep + "\") /* " + deep + " */ // " + deep + "\n").substr(0, 5), "(\"(((");
}

TEST(ToolkitForms, OfTextHaveNoLongNumbersAndNoCommentsInData) {
    EXPECT_EQ(readList("<*I" + times(10'000'000, "1") + ">"), refused);
    EXPECT_EQ(readList("<ab /* > \" */ >" + times(100'000, "(")), refused);
}

TEST(ToolkitForms, InBinaryEndAtTwoHundredContainersOneInTheOther) {
    EXPECT_EQ(readList(chain(200, 1)).substr(0, 3), "(((");
    EXPECT_EQ(readList(chain(201, 1)), refused);
    EXPECT_EQ(readList(chain(60'000, 1)), refused);
}

TEST(ToolkitForms, InBinaryHoldNeitherThemselvesNorTooMuch) {
    EXPECT_EQ(readList(binary({"\xA1"s + number(0, 2)})), refused);
    // Two of the next, and two of its next: more than a machine has room for.
    EXPECT_EQ(readList(chain(10, 2)).substr(0, 3), "(((");
    EXPECT_EQ(readList(chain(100, 2)), refused);
}

TEST(ToolkitForms, InBinaryLieInTheFile) {
    const auto text = "\x5F\x12"s + number(0x7FFFFFFF, 4) + "a";
    const auto wide = "\x6F\x12"s + number(0x7FFFFFFF, 4) + "a";
    const auto array = "\xAF\x12"s + number(0x7FFFFFFF, 4);
    const auto wideCount = "\xAF\x13"s + number(0, 8);
    for (const auto& object : {text, wide, array, wideCount, "\xA1"s + number(9, 2)}) {
        EXPECT_EQ(readList(binary({object})), refused);
    }
    auto upperHalf = chain(100'000 / 2, 1);
    upperHalf[upperHalf.size() - 24] = 1; // Of the number of objects, which the toolkit does not read.
    EXPECT_EQ(readList(upperHalf), refused);
    EXPECT_EQ(readList("bplist00"), refused);
}

TEST(ToolkitForms, AreDamagedWhereTheToolkitRaises) {
    EXPECT_EQ(readList(binary({"\x7F"})), "damaged: it is damaged");
    EXPECT_EQ(readList(binary({"\x51\xFF"})), "damaged: it is damaged");
}

TEST(ToolkitForms, AreDamagedWhereTheyCouldNotBeWrittenAgain) {
    EXPECT_EQ(readList(binary({"\xD1"s + number(1, 2) + number(1, 2), "\x10\x01"})),
        "damaged: a key is no text that XML can hold");
    EXPECT_EQ(readList(binary({"\x33"s + number(0x7E37E43C8800759C, 8)})),
        "damaged: a date is not of the years 1 to 9999");
    EXPECT_EQ(readList("{ \"a\\001\" = b; }"), "damaged: a key is no text that XML can hold");
}

TEST(ToolkitForms, DoNotIncludeThatOfTheSerializer) {
    EXPECT_EQ(readList("\0\1\2\3"s), refused);
    EXPECT_EQ(readList("\1"s), refused);
}
