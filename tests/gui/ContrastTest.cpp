#include "tests/gui/Contrast.h"
#include "tests/gui/Driver.h"
#include "tests/gui/Input.h"

#include "ui/Page.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tarnwick::gui {
namespace {

/// So that a measurement of nothing is not taken for a good one.
long numberOf(const std::vector<Contrast>& all, const std::string& kind, const std::string& what = "") {
    return std::count_if(all.begin(), all.end(),
        [&](const Contrast& one) { return one.kind == kind && (what.empty() || one.what == what); });
}

TEST(Contrast, EverythingOnEveryPageStandsOutFromItsGround) {
    for (const auto page : allPages) {
        clickPageButton(page);
        settle();
        const auto all = contrasts();
        EXPECT_EQ(tooLow(all), "") << "page " << static_cast<int>(page);
        EXPECT_GT(numberOf(all, "text"), 12);
        EXPECT_EQ(numberOf(all, "large text", "Help"), 1);
        EXPECT_EQ(numberOf(all, "picture"), 6);
        EXPECT_GT(numberOf(all, "border", "button"), 1);
    }
}

TEST(Contrast, BoxesOfEachStateStandOut) {
    clickPageButton(Page::createNewFile);
    settle();
    const auto all = contrasts();
    EXPECT_GT(numberOf(all, "border", "box that is off"), 3);
    EXPECT_GT(numberOf(all, "border", "box"), 3);
    EXPECT_EQ(numberOf(all, "mark", "Enable all templates"), 1);
}

} // namespace
} // namespace tarnwick::gui
