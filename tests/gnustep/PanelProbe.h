#pragma once

#include <string>
#include <utility>

/// Open and save panels in a program that has started up.
namespace tarnwick::probe {

struct PanelTexts {
    std::string button;
    std::string message;
    std::string nameLabel;
    std::string title;
    /// Whether the message can be seen in the panel.
    bool showsMessage = false;
    /// Whether the buttons at the foot stand beside one another.
    bool buttonsAreApart = false;
};

/// A save panel's texts after it was given some.
PanelTexts givenTexts(const std::string& title, const std::string& message, const std::string& prompt);
/// The same, asked for once more.
PanelTexts textsOfNextPanel();
/// How many pixels of that prompt are to be seen on a save panel's default button, as wide as the panel makes
/// it and with room to spare.
std::pair<int, int> promptPixels(const std::string& prompt);

struct SaveAnswer {
    long answer = -1;
    int answers = 0;
    std::string path;
    bool beganAtOnce = false;
    bool buttonWasEnabled = false;
};
/// Begins a save panel with a name in it, in a folder, and presses its default button.
SaveAnswer saveAs(const std::string& folder, const std::string& name, const std::string& type);

struct TypedFolder {
    bool panelStays = false;
    std::string shownFolder;
    std::string name;
};
/// Begins a save panel with a name, types the path of a folder in its place and presses the default button.
TypedFolder typeFolderForName(const std::string& folder, const std::string& name);

struct HiddenExtension {
    /// The name field after the folder's only file has been selected.
    std::string nameField;
    /// How many pixels of the file's line in the list are not of its background.
    int ink = 0;
    std::string chosenPath;
};
HiddenExtension chooseOnlyFile(const std::string& folder, bool hidesExtension);

/// Which way an open panel is read that shows a folder deep inside others.
struct PanelLayout {
    bool iconIsAtTheLeft = false;
    bool titleIsAtTheLeft = false;
    bool defaultButtonIsAtTheLeft = false;
    bool labelIsLeftOfItsField = false;
    bool columnsGoOnToTheRight = false;
    bool titlesGoOnToTheRight = false;
    bool scrollerEndsAtTheRight = false;
    bool leftKeyGoesBack = false;
    bool rightKeyGoesBack = false;
    std::string nameLabel;
};
PanelLayout layoutOfOpenPanel(const std::string& folder);

/// Where a panel begins that is to begin in a folder.
std::string beginningOf(const std::string& folder);
std::string homeFolder();

/// Whether a long name above a column of a panel is cut in its middle; that of another cell is not.
bool cutsColumnTitlesInTheMiddle();
bool cutsOtherTextsInTheMiddle();

} // namespace tarnwick::probe
