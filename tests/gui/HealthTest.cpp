#include "tests/gui/Health.h"
#include "tests/gui/Controls.h"
#include "tests/gui/Driver.h"
#include "tests/gui/Foreign.h"
#include "tests/gui/Input.h"
#include "tests/gui/Panels.h"
#include "tests/gui/Shown.h"
#include "tests/support/Categories.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace tarnwick::gui {
namespace {

using testing::folders;
constexpr auto name = "commonPathDisplayName";

/// Adds a common folder that is there, and gives its path.
std::string addFolder(const std::string& folderName) {
    const auto path = std::filesystem::path(sandboxFolder()) / folderName;
    std::filesystem::create_directories(path);
    chooseInNextPanel(path);
    const auto before = rowCount(folders);
    clickButton("Add Folders\u2026");
    EXPECT_TRUE(waitUntil([before] { return rowCount(folders) > before; }));
    return path;
}

TEST(Health, AFolderThatIsLostIsMarkedCountedFoundAndChosenAnew) {
    clickPageButton(Page::commonPath);
    const auto kept = addFolder("Kept");
    const auto lost = addFolder("So long a name that the middle of its path is left out in any window/Lost");
    EXPECT_FALSE(showsText("1 folder cannot be found"));
    EXPECT_EQ(cellLook(folders, 1, name), CellLook{});
    const auto height = listHeight(folders);

    std::filesystem::remove(lost);
    comeBack();
    ASSERT_TRUE(waitUntil([] { return showsText("1 folder cannot be found"); }));
    takePicture("lost-folder");
    const std::string help = "This folder cannot be found. Choose it anew, or remove the rule.";
    EXPECT_EQ(cellLook(folders, 1, name),
        (CellLook{.warns = true, .isSlanted = true, .toolTip = help, .help = help}));
    EXPECT_EQ(cellLook(folders, 1, "realPath").toolTip, help + "\n" + lost);
    EXPECT_EQ(cellLook(folders, 0, "realPath").toolTip, kept);
    EXPECT_FALSE(cellLook(folders, 0, name).warns);
    EXPECT_LT(listHeight(folders), height);

    clickButton("Show Next");
    EXPECT_EQ(selectedRow(folders), 1);
    chooseInNextPanel(kept);
    clickButton("Choose Folder\u2026");
    ASSERT_TRUE(waitUntil([] { return !showsText("1 folder cannot be found"); }));
    EXPECT_EQ(cellText(folders, 1, name), "Kept");
    EXPECT_EQ(cellLook(folders, 1, name), CellLook{});
    EXPECT_EQ(listHeight(folders), height);
}

TEST(Health, TheMarksComeWhileANameIsBeingEditedAndLeaveItAlone) {
    clickPageButton(Page::commonPath);
    const auto lost = addFolder("Lost");
    const auto row = rowCount(folders) - 1;
    clickCell(folders, 0, name);
    press(Key::returnKey);
    type("Half");
    ASSERT_TRUE(isEditing());
    std::filesystem::remove(lost);
    comeBack();
    ASSERT_TRUE(waitUntil([] { return showsText("1 folder cannot be found"); }));
    EXPECT_TRUE(isEditing());
    type("way");
    press(Key::returnKey);
    EXPECT_EQ(cellText(folders, 0, name), "Halfway");
    EXPECT_TRUE(cellLook(folders, row, name).warns);
}

TEST(Health, TheNextFaultIsReachedByKeyboard) {
    clickPageButton(Page::commonPath);
    ASSERT_TRUE(waitUntil([] { return showsText("1 folder cannot be found"); }));
    clickCell(folders, 0, name);
    ASSERT_TRUE(tabTo("Show Next"));
    press(Key::space);
    EXPECT_EQ(selectedRow(folders), rowCount(folders) - 1);
}

TEST(Health, TheWarningCanBeReadOnEveryGroundInLightAndDark) {
    for (const auto contrast : contrastsOfWarning()) {
        EXPECT_GE(contrast, 4.5);
    }
    EXPECT_EQ(contrastsOfWarning().size(), 4U);
}

TEST(Health, OnTheStrongColourOfASelectionTheSlantAloneWarns) {
    EXPECT_TRUE(warningIsPlainOnStrongColour());
}

TEST(Health, ATextThatIsCutOffHasItsWholeAsToolTip) {
    clickPageButton(Page::commonPath);
    clickCell(folders, 0, name);
    press(Key::returnKey);
    const std::string longName(60, 'W');
    type(longName);
    press(Key::returnKey);
    EXPECT_EQ(cellLook(folders, 0, name).toolTip, longName);
}

} // namespace
} // namespace tarnwick::gui
