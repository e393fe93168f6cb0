#include "tests/gui/Controls.h"
#include "tests/gui/Input.h"

#include <gtest/gtest.h>

#include <set>

namespace tarnwick::gui {
namespace {

constexpr Page pages[] = {
    Page::createNewFile, Page::copyFilesTo, Page::commonPath, Page::customIcon, Page::others, Page::moreApps};

TEST(Accessibility, EveryControlOfEveryPageHasALabelOfItsOwn) {
    for (const auto page : pages) {
        clickPageButton(page);
        if (page == Page::copyFilesTo) {
            clickButton("Reset List");
        }
        std::set<std::pair<std::string, std::string>> seen;
        for (const auto& control : visibleControls()) {
            EXPECT_FALSE(control.label.empty()) << control.kind << " on page " << static_cast<int>(page);
            if (control.kind != "text") {
                EXPECT_TRUE(seen.emplace(control.kind, control.label).second)
                    << control.kind << " " << control.label << " on page " << static_cast<int>(page);
            }
        }
        EXPECT_GT(seen.size(), 8U);
    }
}

TEST(Accessibility, ARowsControlsNameTheRow) {
    clickPageButton(Page::createNewFile);
    const auto controls = visibleControls();
    const auto has = [&controls](const ControlFacts& facts) {
        return std::find(controls.begin(), controls.end(), facts) != controls.end();
    };
    EXPECT_TRUE(has({"check box", "Offer TXT in the menu"}));
    EXPECT_TRUE(has({"check box", "Offer TXT in the main menu"}));
    EXPECT_TRUE(has({"field", "Name of Word"}));
    EXPECT_TRUE(has({"image", "Icon of Word"}));
    EXPECT_TRUE(has({"table", "New File"}));
}

TEST(Accessibility, TheTabKeyGoesFromTheSidebarThroughThePageAndBack) {
    clickPageButton(Page::copyFilesTo);
    std::vector<std::string> labels;
    for (const auto& control : tabOrder()) {
        labels.push_back(control.label);
    }
    EXPECT_EQ(labels,
        (std::vector<std::string>{"New File", "Copy & Move To", "Common Folders", "Custom Icons",
            "More Items", "More Apps", "Preview Menu", "Help", "Offer copying to these folders",
            "Offer moving to these folders", "Show icons in the menu", "Play a sound after copying or moving",
            "Copy & Move To", "Show Next", "Add Folders\u2026", "Reset List"}));
}

} // namespace
} // namespace tarnwick::gui
