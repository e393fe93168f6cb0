#include "tests/gui/Cells.h"
#include "tests/gui/Driver.h"
#include "tests/gui/Input.h"
#include "tests/support/Categories.h"

#include <gtest/gtest.h>

namespace tarnwick::gui {
namespace {

using testing::icons;
using testing::templates;

TEST(Cells, ATextTakesTheBackgroundStyleOfItsRow) {
    clickPageButton(Page::createNewFile);
    EXPECT_EQ(backgroundStylesOfText(templates, 0, "NewFileDisplayName"), "10");
    EXPECT_EQ(backgroundStylesOfText(templates, 0, "Extension"), "10");
}

TEST(Cells, ADragInARowDoesNotMoveTheWindow) {
    clickPageButton(Page::createNewFile);
    for (const auto* column : {"NewFileDisplayName", "Extension", "NewFileIcon"}) {
        EXPECT_FALSE(cellMovesWindow(templates, 0, column)) << column;
    }
}

TEST(Cells, OnlyATextThatCanBeEditedCanBeSelected) {
    clickPageButton(Page::createNewFile);
    EXPECT_TRUE(cellTextIsSelectable(templates, 0, "NewFileDisplayName"));
    EXPECT_FALSE(cellTextIsSelectable(templates, 0, "Extension"));
}

TEST(Cells, ALongNameIsCutAtTheEndOfItsLineInsteadOfWrapping) {
    clickPageButton(Page::customIcon);
    constexpr auto name = "CustomIconName";
    EXPECT_LT(drawnShareOfText(icons, 0, name), 0.5);
    clickCell(icons, 0, name, 2);
    pressCommand('a');
    type("My " + std::string(80, 'm'));
    press(Key::returnKey);
    press(Key::tab);
    settle();
    EXPECT_GT(drawnShareOfText(icons, 0, name), 0.9);
}

} // namespace
} // namespace tarnwick::gui
