#include "gnustep/events/AddressList.h"

#include <gtest/gtest.h>

using Paths = std::vector<std::string>;

TEST(AddressList, ArePathsOfFilesOnePerLine) {
    EXPECT_EQ(TNPathsInAddresses("file:///tmp/One%20file.txt\r\nfile:///tmp/%E8%A1%A8%e6%a0%bc\r\n"),
        (Paths{"/tmp/One file.txt", "/tmp/\u8868\u683C"}));
    EXPECT_EQ(TNPathsInAddresses("file://localhost/tmp/a;b:c\nfile:///last"), (Paths{"/tmp/a;b:c", "/last"}));
}

TEST(AddressList, OfOtherKindsAndMachinesAreLeftOut) {
    EXPECT_EQ(
        TNPathsInAddresses("# a comment\r\nhttps://example.org/a\r\nfile://elsewhere/tmp/a\r\n"), Paths());
    EXPECT_EQ(TNPathsInAddresses(""), Paths());
    EXPECT_EQ(TNPathsInAddresses("\r\n\r\n"), Paths());
}

TEST(AddressList, MayHaveAPercentSignThatStandsForItself) {
    EXPECT_EQ(
        TNPathsInAddresses("file:///50%\nfile:///5%0\nfile:///%zz%41"), (Paths{"/50%", "/5%0", "/%zzA"}));
}
