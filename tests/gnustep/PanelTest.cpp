#include "Files.h"
#include "PanelProbe.h"
#include "Probe.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace tarnwick::probe;

namespace {

std::string newFolder(const std::string& name) {
    auto folder = libraryFolder() + "/" + name;
    EXPECT_EQ(mkdir(folder.c_str(), 0700), 0);
    return folder;
}

std::string newFolderInsideOthers() {
    auto folder = newFolder("one");
    for (const auto* name : {"/two", "/three", "/four", "/five", "/six"}) {
        folder += name;
        EXPECT_EQ(mkdir(folder.c_str(), 0700), 0);
    }
    return folder;
}

} // namespace

TEST(Panel, ShowsItsTitleItsMessageAndItsPromptOnTheDefaultButton) {
    const auto texts = givenTexts("Export", "Where to?", "Export These Settings");
    EXPECT_EQ(texts.title, "Export");
    EXPECT_EQ(texts.message, "Where to?");
    EXPECT_TRUE(texts.showsMessage);
    EXPECT_EQ(texts.button, "Export These Settings");
    EXPECT_EQ(texts.nameLabel, "Name:");
    EXPECT_TRUE(texts.buttonsAreApart);
}

TEST(Panel, HasRoomForItsPrompt) {
    for (const auto* prompt : {"Export", "Exporter", "Export These Settings"}) {
        const auto [pixels, pixelsWithRoom] = promptPixels(prompt);
        EXPECT_GT(pixels, 0) << prompt;
        EXPECT_EQ(pixels, pixelsWithRoom) << prompt;
    }
}

TEST(Panel, HasNoneOfTheTextsOfTheOneBefore) {
    static_cast<void>(givenTexts("Export", "Where to?", "Export These Settings"));
    const auto texts = textsOfNextPanel();
    EXPECT_EQ(texts.title, "Save");
    EXPECT_EQ(texts.message, "");
    EXPECT_EQ(texts.button, "OK");
    EXPECT_TRUE(texts.buttonsAreApart);
}

TEST(Panel, GivesTheBlockTheNameToSaveAsWithItsExtension) {
    const auto folder = newFolder("saved");
    const auto result = saveAs(folder, "Backup \u00E9", "plist");
    EXPECT_TRUE(result.beganAtOnce);
    EXPECT_TRUE(result.buttonWasEnabled);
    EXPECT_EQ(result.answers, 1);
    EXPECT_EQ(result.answer, 1);
    EXPECT_EQ(result.path, folder + "/Backup \u00E9.plist");
}

TEST(Panel, GoesIntoAFolderThatIsTypedForTheNameToSaveAs) {
    const auto folder = newFolder("typed");
    for (const auto& typed : {folder, folder + "/"}) {
        const auto result = typeFolderForName(typed, "Backup");
        EXPECT_TRUE(result.panelStays) << typed;
        EXPECT_EQ(result.shownFolder, folder) << typed;
        EXPECT_EQ(result.name, "Backup") << typed;
    }
}

TEST(Panel, BeginsInTheUsersHomeWhenTheFolderAskedForIsNotThere) {
    EXPECT_EQ(beginningOf("/usr/share"), "/usr/share");
    EXPECT_EQ(beginningOf("/nowhere/Desktop"), homeFolder());
    EXPECT_EQ(beginningOf("/etc/passwd"), homeFolder());
}

TEST(Panel, CutsALongNameAboveAColumnInItsMiddle) {
    EXPECT_TRUE(cutsColumnTitlesInTheMiddle());
    EXPECT_FALSE(cutsOtherTextsInTheMiddle());
}

TEST(Panel, HidesExtensionsWhereItIsToldTo) {
    const auto folder = newFolder("chosen");
    writeContent(folder + "/Letter.document", "x");
    const auto shown = chooseOnlyFile(folder, false);
    const auto hidden = chooseOnlyFile(folder, true);
    EXPECT_EQ(shown.nameField, "Letter.document");
    EXPECT_EQ(hidden.nameField, "Letter");
    EXPECT_LT(hidden.ink, 0.7 * shown.ink);
    EXPECT_GT(hidden.ink, 0.2 * shown.ink);
    EXPECT_EQ(shown.chosenPath, folder + "/Letter.document");
    EXPECT_EQ(hidden.chosenPath, folder + "/Letter.document");
}

TEST(Panel, IsReadFromLeftToRight) {
    const auto layout = layoutOfOpenPanel(newFolderInsideOthers());
    EXPECT_TRUE(layout.iconIsAtTheLeft);
    EXPECT_TRUE(layout.titleIsAtTheLeft);
    EXPECT_FALSE(layout.defaultButtonIsAtTheLeft);
    EXPECT_TRUE(layout.labelIsLeftOfItsField);
    EXPECT_TRUE(layout.columnsGoOnToTheRight);
    EXPECT_TRUE(layout.titlesGoOnToTheRight);
    EXPECT_TRUE(layout.scrollerEndsAtTheRight);
    EXPECT_TRUE(layout.leftKeyGoesBack);
    EXPECT_FALSE(layout.rightKeyGoesBack);
    EXPECT_EQ(layout.nameLabel, "Name:");
}

TEST(Panel, IsTurnedAroundWhenReadFromRightToLeft) {
    turnReadingDirection();
    const auto layout = layoutOfOpenPanel(newFolderInsideOthers());
    EXPECT_FALSE(layout.iconIsAtTheLeft);
    EXPECT_FALSE(layout.titleIsAtTheLeft);
    EXPECT_TRUE(layout.defaultButtonIsAtTheLeft);
    EXPECT_FALSE(layout.labelIsLeftOfItsField);
    EXPECT_FALSE(layout.columnsGoOnToTheRight);
    EXPECT_FALSE(layout.titlesGoOnToTheRight);
    EXPECT_FALSE(layout.scrollerEndsAtTheRight);
    EXPECT_FALSE(layout.leftKeyGoesBack);
    EXPECT_TRUE(layout.rightKeyGoesBack);
    EXPECT_EQ(layout.nameLabel, "Name:");
}
