#include "tests/gui/Driver.h"
#include "tests/gui/Foreign.h"
#include "tests/gui/Input.h"
#include "tests/gui/Panels.h"
#include "tests/gui/Shown.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

namespace tarnwick::gui {
namespace {

/// A folder of the user's with something to add.
std::string makeFolder(const std::string& name) {
    const auto folder = sandboxFolder() + "/" + name;
    EXPECT_EQ(std::system(("mkdir -p '" + folder + "'").c_str()), 0);
    return folder;
}

void writeFile(const std::string& path, const std::string& contents) {
    std::ofstream(path, std::ios::binary) << contents;
}

bool lastTemplateIs(const std::string& name) {
    return shared("d['arrOfCreateNewFile'][-1]['displayName']") == "'" + name + "'";
}

TEST(Adding, AChosenTemplateIsCopiedAppendedAndPublished) {
    const auto folder = makeFolder("docs");
    writeFile(folder + "/Letter.txt", "Dear");
    chooseInNextPanel(folder + "/Letter.txt");
    clickButton("Add Templates\u2026");
    ASSERT_TRUE(waitUntil([] { return lastTemplateIs("Letter"); }));
    EXPECT_EQ(rowCount(RuleCategory::createNewFile), 16);
    EXPECT_EQ(shared("[d['arrOfCreateNewFile'][-1][k] for k in ('enable', 'extension', 'modified')]"),
        "['1', 'txt', '1']");
    EXPECT_EQ(local("d['prePathOfCreateNewFile']"), "'" + folder + "'");
    EXPECT_NE(containerFolder("Templates/CreateNewFile").find("Letter.txt"), std::string::npos);
    EXPECT_EQ(cellText(RuleCategory::createNewFile, 15, "NewFileDisplayName"), "Letter");
}

TEST(Adding, CancellingThePanelChangesNothing) {
    const auto before = local("sorted(d)");
    cancelNextPanel();
    pressCommand('n');
    settle();
    EXPECT_EQ(rowCount(RuleCategory::createNewFile), 16);
    EXPECT_EQ(local("sorted(d)"), before);
}

TEST(Adding, CommandNAddsToThePageThatIsShown) {
    const auto folder = makeFolder("pictures");
    ASSERT_EQ(std::system(("convert-im6.q16 -size 40x30 xc:blue '" + folder + "/Blue.png'").c_str()), 0);
    clickPageButton(Page::customIcon);
    chooseInNextPanel(folder + "/Blue.png");
    pressCommand('n');
    ASSERT_TRUE(waitUntil([] { return shared("len(d['arrOfCustomIcon'])") == "21"; }));
    EXPECT_EQ(shared("[d['arrOfCustomIcon'][-1][k] for k in ('displayName', 'enable', 'modified')]"),
        "['Blue.png', 1, '1']");
    EXPECT_EQ(shared("d['arrOfCustomIcon'][-1]['icon'][:2] in (b'II', b'MM')"), "True");
    EXPECT_TRUE(rowIsInSight(RuleCategory::customIcon, 20));
    EXPECT_EQ(selectedRow(RuleCategory::customIcon), -1);
    EXPECT_EQ(cellText(RuleCategory::customIcon, 20, "Size"), "40 x 30");
}

TEST(Adding, AChosenFolderBecomesATarget) {
    const auto folder = makeFolder("target");
    clickPageButton(Page::copyFilesTo);
    chooseInNextPanel(folder);
    clickButton("Add Folders\u2026");
    ASSERT_TRUE(waitUntil([] { return shared("len(d.get('arrOfCopyFilesTo', []))") == "1"; }));
    EXPECT_EQ(shared("d['arrOfCopyFilesTo'][0]"),
        "{'displayName': 'target', 'enable': 1, 'realPath': '" + folder + "'}");
    EXPECT_EQ(cellText(RuleCategory::copyFilesTo, 0, "realPath"), folder);
}

TEST(Adding, TheChooseFolderButtonGivesTheSelectedRowAnotherFolder) {
    const auto folder = makeFolder("other");
    EXPECT_FALSE(buttonIsEnabled("Choose Folder\u2026"));
    clickCell(RuleCategory::copyFilesTo, 0, "Note");
    EXPECT_TRUE(buttonIsEnabled("Choose Folder\u2026"));
    chooseInNextPanel(folder);
    clickButton("Choose Folder\u2026");
    ASSERT_TRUE(
        waitUntil([&] { return shared("d['arrOfCopyFilesTo'][0]['realPath']") == "'" + folder + "'"; }));
    EXPECT_EQ(shared("d['arrOfCopyFilesTo'][0]['displayName']"), "''");
    EXPECT_EQ(cellText(RuleCategory::copyFilesTo, 0, "Note"), "other");
}

TEST(Adding, ADoubleClickOnThePathDoesTheSame) {
    const auto folder = makeFolder("third");
    chooseInNextPanel(folder);
    clickCell(RuleCategory::copyFilesTo, 0, "realPath", 2);
    ASSERT_TRUE(
        waitUntil([&] { return shared("d['arrOfCopyFilesTo'][0]['realPath']") == "'" + folder + "'"; }));
}

TEST(Adding, ACommonFolderIsPublishedWithItsFirstChange) {
    const auto folder = makeFolder("common");
    EXPECT_EQ(shared("'arrOfCommonPath' in d"), "False");
    clickPageButton(Page::commonPath);
    chooseInNextPanel(folder);
    clickButton("Add Folders\u2026");
    ASSERT_TRUE(waitUntil([] { return shared("len(d.get('arrOfCommonPath', []))") == "1"; }));
    EXPECT_EQ(cellText(RuleCategory::commonPath, 0, "commonPathDisplayName"), "common");
}

TEST(Adding, AnActionIconBringsItsMenuItemBack) {
    clickPageButton(Page::others);
    const auto folder =
        sandboxFolder() +
        "/library/Group Containers/H7Q2ZK5RX9.org.halvane.Tarnwick/Templates/OthersMenuItemIcon";
    chooseInNextPanel(folder + "/Paste.png");
    clickButton("Add Items\u2026");
    ASSERT_TRUE(waitUntil([] { return shared("len(d['arrOfOthers'])") == "19"; }));
    EXPECT_EQ(shared("[d['arrOfOthers'][-1][k] for k in ('Action', 'displayName', 'Note', 'nameModified')]"),
        "['Paste', 'Paste', '', '0']");
}

} // namespace
} // namespace tarnwick::gui
