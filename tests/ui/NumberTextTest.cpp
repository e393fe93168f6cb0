#include "ui/NumberText.h"

#include "tests/support/InMemoryPlatform.h"

#include <gtest/gtest.h>

namespace tarnwick::testing {
namespace {

class NumberTextTest : public ::testing::Test {
protected:
    [[nodiscard]] std::string textOf(std::size_t number) const {
        return numberText(platform_.bundle, number);
    }

    InMemoryPlatform platform_;
};

TEST_F(NumberTextTest, NumbersBelowAThousandAreDigitsAlone) {
    EXPECT_EQ(textOf(0), "0");
    EXPECT_EQ(textOf(999), "999");
}

TEST_F(NumberTextTest, LongerNumbersAreInGroupsOfThree) {
    EXPECT_EQ(textOf(1000), "1,000");
    EXPECT_EQ(textOf(10'007), "10,007");
    EXPECT_EQ(textOf(1'234'567), "1,234,567");
}

TEST_F(NumberTextTest, TheLanguageSeparatesTheGroups) {
    platform_.bundle.texts["%1$@,%2$@"] = "%1$@.%2$@";
    EXPECT_EQ(textOf(1'000'000), "1.000.000");
}

} // namespace
} // namespace tarnwick::testing
