#include "tests/gui/Dropping.h"
#include "tests/gui/Foreign.h"
#include "tests/gui/Input.h"
#include "tests/gui/Shown.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

namespace tarnwick::gui {
namespace {

/// A folder, a text file and a picture outside the application's own folders, made once.
std::string thing(const std::string& name) {
    static const std::string home = [] {
        const auto folder = sandboxFolder() + "/things";
        EXPECT_EQ(std::system(("mkdir -p '" + folder + "/Zoo' '" + folder + "/Attic'").c_str()), 0);
        std::ofstream(folder + "/Letter.txt") << "Dear";
        EXPECT_EQ(std::system(("convert-im6.q16 -size 30x20 xc:red '" + folder + "/Red.png'").c_str()), 0);
        return folder;
    }();
    return home + "/" + name;
}

TEST(Dropping, FoldersBecomeTargetsAndNoFolderIsRemembered) {
    clickPageButton(Page::copyFilesTo);
    const auto result = dropFiles({thing("Zoo"), thing("Attic")}, DropSpot::table);
    EXPECT_TRUE(result.wasHighlighted);
    EXPECT_FALSE(result.isHighlighted);
    EXPECT_EQ(shared("[(r['displayName'], r['enable'], r['realPath']) for r in d['arrOfCopyFilesTo']]"),
        "[('Zoo', 1, '" + thing("Zoo") + "'), ('Attic', 1, '" + thing("Attic") + "')]");
    EXPECT_EQ(local("d['arrOfCopyFilesTo']"), shared("d['arrOfCopyFilesTo']"));
    EXPECT_EQ(local("'prePathOfSendFilesTo' in d"), "False");
    EXPECT_EQ(cellText(RuleCategory::copyFilesTo, 1, "Note"), "Attic");
    EXPECT_FALSE(showsText("No folders to copy or move to"));
}

TEST(Dropping, AFolderIsAddedWhereverOnThePageItIsDropped) {
    clickPageButton(Page::commonPath);
    EXPECT_TRUE(dropFiles({thing("Zoo")}, DropSpot::heading).wasHighlighted);
    EXPECT_TRUE(dropFiles({thing("Attic")}, DropSpot::switches).wasHighlighted);
    EXPECT_TRUE(dropFiles({thing("Zoo")}, DropSpot::table).wasHighlighted);
    EXPECT_EQ(sharedNames("arrOfCommonPath"), "['Zoo', 'Attic', 'Zoo']");
}

TEST(Dropping, AFileIsNoFolderAndAFolderIsNoFile) {
    clickPageButton(Page::copyFilesTo);
    for (const auto spot : {DropSpot::table, DropSpot::heading}) {
        EXPECT_FALSE(dropFiles({thing("Letter.txt")}, spot).wasHighlighted);
    }
    EXPECT_EQ(rowCount(RuleCategory::copyFilesTo), 2);
    clickPageButton(Page::createNewFile);
    EXPECT_FALSE(dropFiles({thing("Zoo")}, DropSpot::table).wasHighlighted);
    EXPECT_EQ(rowCount(RuleCategory::createNewFile), 15);
}

TEST(Dropping, AFileBecomesATemplate) {
    clickPageButton(Page::createNewFile);
    EXPECT_TRUE(dropFiles({thing("Letter.txt")}, DropSpot::table).wasHighlighted);
    EXPECT_EQ(shared("[d['arrOfCreateNewFile'][-1][k] for k in ('displayName', 'enable', 'extension')]"),
        "['Letter', '1', 'txt']");
    EXPECT_NE(containerFolder("Templates/CreateNewFile").find("Letter.txt"), std::string::npos);
    EXPECT_EQ(rowCount(RuleCategory::createNewFile), 16);
}

TEST(Dropping, APictureBecomesACustomIconAndOtherFilesDoNot) {
    clickPageButton(Page::customIcon);
    EXPECT_FALSE(dropFiles({thing("Letter.txt")}, DropSpot::table).wasHighlighted);
    EXPECT_TRUE(dropFiles({thing("Letter.txt"), thing("Red.png")}, DropSpot::table).wasHighlighted);
    EXPECT_EQ(rowCount(RuleCategory::customIcon), 21);
    EXPECT_EQ(cellText(RuleCategory::customIcon, 20, "CustomIconName"), "Red.png");
    EXPECT_EQ(cellText(RuleCategory::customIcon, 20, "Size"), "30 x 20");
    EXPECT_EQ(shared("d['arrOfCustomIcon'][-1]['icon'][:2] in (b'II', b'MM')"), "True");
}

TEST(Dropping, TheOtherItemsTakeNothing) {
    clickPageButton(Page::others);
    const auto before = local("sorted(d)");
    EXPECT_FALSE(dropFiles({thing("Red.png")}, DropSpot::table).wasHighlighted);
    EXPECT_FALSE(dropFiles({thing("Zoo")}, DropSpot::heading).wasHighlighted);
    EXPECT_EQ(rowCount(RuleCategory::others), 18);
    EXPECT_EQ(local("sorted(d)"), before);
}

TEST(Dropping, ADragThatLeavesAgainChangesNothing) {
    clickPageButton(Page::copyFilesTo);
    for (const auto spot : {DropSpot::table, DropSpot::heading}) {
        const auto result = dragFilesOverAndAway({thing("Zoo")}, spot);
        EXPECT_TRUE(result.wasHighlighted);
        EXPECT_FALSE(result.isHighlighted);
    }
    EXPECT_EQ(rowCount(RuleCategory::copyFilesTo), 2);
}

TEST(Dropping, ANameThatIsBeingEditedIsKept) {
    clickPageButton(Page::copyFilesTo);
    clickCell(RuleCategory::copyFilesTo, 0, "Note", 2);
    ASSERT_TRUE(isEditing());
    type("Den");
    dropFiles({thing("Zoo")}, DropSpot::heading);
    EXPECT_FALSE(isEditing());
    EXPECT_EQ(sharedNames("arrOfCopyFilesTo"), "['Den', 'Attic', 'Zoo']");
}

TEST(Dropping, RowsAreStillDraggedWithinTheirTable) {
    clickPageButton(Page::copyFilesTo);
    dragRowIntoGap(RuleCategory::copyFilesTo, 2, 0);
    EXPECT_EQ(sharedNames("arrOfCopyFilesTo"), "['Zoo', 'Den', 'Attic']");
}

} // namespace
} // namespace tarnwick::gui
