#include "ui/WindowLayout.h"

#include <array>

namespace tarnwick {
namespace {

constexpr std::array<ColumnLayout, 5> createNewFileColumns{{
    {"Enable", "", 34},
    {"NewFileIcon", "", 44},
    {"NewFileDisplayName", "Name", 260, true},
    {"Extension", "Extension", 110},
    {"EnableMainMenu", "Main Menu", 92, false, true},
}};

constexpr std::array<ColumnLayout, 4> copyFilesToColumns{{
    {"Enable", "", 34},
    {"SendFileIcon", "", 40},
    {"Note", "Name", 200, true},
    {"realPath", "Folder", 280, true},
}};

constexpr std::array<ColumnLayout, 3> commonPathColumns{{
    {"commonPathIcon", "", 40},
    {"commonPathDisplayName", "Name", 200, true},
    {"realPath", "Folder", 280, true},
}};

constexpr std::array<ColumnLayout, 4> customIconColumns{{
    {"Enable", "", 34},
    {"Icon", "", 44},
    {"CustomIconName", "Name", 300, true},
    {"Size", "Size", 112, false, true},
}};

constexpr std::array<ColumnLayout, 4> othersColumns{{
    {"OthersEnable", "", 34},
    {"OthersIcon", "", 52},
    {"OthersDisplayName", "Name", 240, true},
    {"OthersNote", "Note", 200, true},
}};

constexpr std::array<SwitchLayout, 4> createNewFileSwitches{{
    {"enableIconOfCreateNewFile", "Show icons in the menu", "Shows each template's icon beside its name."},
    {"enableAutoOpenAfterCreateNewFile", "Open a new file right away",
        "Opens the file in its application as soon as it has been created."},
    {"soundTipsOfNewFile", "Play a sound after creating a file",
        "A short sound says that the file is there."},
    {"disableAutoNameOfCreateNewFile", "Do not name new files automatically",
        "The name of a new file is left to you."},
}};

constexpr std::array<SwitchLayout, 4> copyFilesToSwitches{{
    {"enableCopyFilesTo", "Offer copying to these folders", "Shows the section \"Copy to\" in the menu."},
    {"enableMoveFilesTo", "Offer moving to these folders", "Shows the section \"Move to\" in the menu."},
    {"enableIconOfSendFilesTo", "Show icons in the menu", "Shows each folder's icon beside its name."},
    {"soundTipsOfSendFilesTo", "Play a sound after copying or moving",
        "A short sound says that the files have arrived."},
}};

constexpr std::array<SwitchLayout, 2> commonPathSwitches{{
    {"enableCommonPath", "Offer these folders in the menu",
        "Shows the section of common folders in the menu."},
    {"enableIconOfCommonPath", "Show icons in the menu", "Shows each folder's icon beside its name."},
}};

constexpr std::array<SwitchLayout, 1> customIconSwitches{{
    {"enableIconOfCustomIcon", "Show icons in the menu", "Shows each picture beside its name."},
}};

constexpr std::array<SwitchLayout, 4> othersSwitches{{
    {"enableIconOfOthers", "Show icons in the menu", "Shows each item's icon beside its name."},
    {"deleteDirectlyRequiresConfirmation", "Confirm before deleting directly",
        "\"Delete directly\" does not use the Trash; this asks first."},
    {"newWindowOfOpenInTerminal", "Open Terminal in a new window",
        "Off: \"Open in Terminal\" uses a tab of the front window."},
    {"newWindowOfOpenIniTerm2", "Open iTerm2 in a new window",
        "Off: \"Open in iTerm2\" uses a tab of the front window."},
}};

constexpr std::array<PageLayout, pageCount> layouts{{
    {Page::createNewFile, "page-createNewFile", "New File",
        "Templates that the menu offers for creating a new file in the folder at hand.",
        RuleCategory::createNewFile, createNewFileColumns, "NewFileDisplayName", "Enable",
        createNewFileSwitches, "Enable all templates", "Add Templates\u2026", "No templates",
        "Choose \u201CAdd Templates\u2026\u201D and pick a file: the menu then offers new files like it."},
    {Page::copyFilesTo, "page-copyFilesTo", "Copy & Move To",
        "Folders that the selected files can be copied or moved to.", RuleCategory::copyFilesTo,
        copyFilesToColumns, "Note", "Enable", copyFilesToSwitches, "", "Add Folders\u2026",
        "No folders to copy or move to",
        "Choose \u201CAdd Folders\u2026\u201D and pick a folder: the menu then copies or moves files there."},
    {Page::commonPath, "page-commonPath", "Common Folders", "Folders that are one click away in every menu.",
        RuleCategory::commonPath, commonPathColumns, "commonPathDisplayName", "", commonPathSwitches, "",
        "Add Folders\u2026", "No common folders",
        "Choose \u201CAdd Folders\u2026\u201D and pick a folder: the menu then opens it from anywhere."},
    {Page::customIcon, "page-customIcon", "Custom Icons",
        "Pictures that the selected files and folders can be given as their icon.", RuleCategory::customIcon,
        customIconColumns, "CustomIconName", "Enable", customIconSwitches, "Enable all icons",
        "Add Pictures\u2026", "No pictures",
        "Choose \u201CAdd Pictures\u2026\u201D and pick a PNG file: the menu then offers it as an icon."},
    {Page::others, "page-others", "More Items",
        "Further actions of the menu, and applications to open files with.", RuleCategory::others,
        othersColumns, "OthersDisplayName", "OthersEnable", othersSwitches, "Enable all items",
        "Add Items\u2026", "No items",
        "Choose \u201CAdd Items\u2026\u201D and pick an item: the menu then shows it again."},
    {Page::moreApps, "page-moreApps", "More Apps", "Other applications by the makers of Tarnwick.",
        std::nullopt, {}, "", "", {}, "", "", "", ""},
}};

} // namespace

const PageLayout& layoutOf(RuleCategory category) {
    // The lists have the first five pages, in their own order.
    return layouts[static_cast<std::size_t>(category)];
}

std::span<const PageLayout, pageCount> pageLayouts() {
    return layouts;
}

} // namespace tarnwick
