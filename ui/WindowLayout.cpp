#include "ui/WindowLayout.h"

#include "integration/Links.h"

#include <algorithm>
#include <array>

namespace tarnwick {
namespace {

constexpr std::array<SwitchLayout, 4> createNewFileSwitches{{
    {"enableIconOfCreateNewFile", "Show icons in the menu", "Shows each template's icon beside its name.",
        true},
    {"enableAutoOpenAfterCreateNewFile", "Open a new file right away",
        "Opens the file in its application as soon as it has been created."},
    {"soundTipsOfNewFile", "Play a sound after creating a file",
        "A short sound says that the file is there."},
    {"disableAutoNameOfCreateNewFile", "Name new files yourself", "The name of a new file is left to you."},
}};

constexpr std::array<SwitchLayout, 4> copyFilesToSwitches{{
    {"enableCopyFilesTo", "Offer copying to these folders", "Shows the section \"Copy to\" in the menu."},
    {"enableMoveFilesTo", "Offer moving to these folders", "Shows the section \"Move to\" in the menu."},
    {"enableIconOfSendFilesTo", "Show icons in the menu", "Shows each folder's icon beside its name.", true},
    {"soundTipsOfSendFilesTo", "Play a sound after copying or moving",
        "A short sound says that the files have arrived."},
}};

constexpr std::array<SwitchLayout, 2> commonPathSwitches{{
    {"enableCommonPath", "Offer these folders in the menu",
        "Shows the section of common folders in the menu."},
    {"enableIconOfCommonPath", "Show icons in the menu", "Shows each folder's icon beside its name.", true},
}};

constexpr std::array<SwitchLayout, 1> customIconSwitches{{
    {"enableIconOfCustomIcon", "Show icons in the menu", "Shows each picture beside its name.", true},
}};

constexpr std::array<SwitchLayout, 4> othersSwitches{{
    {"enableIconOfOthers", "Show icons in the menu", "Shows each item's icon beside its name.", true},
    {"deleteDirectlyRequiresConfirmation", "Confirm before deleting directly",
        "Asks first, because \u201CDelete Directly\u201D bypasses the Trash."},
    {"newWindowOfOpenInTerminal", "Open Terminal in a new window",
        "Off: \"Open in Terminal\" uses a tab of the front window."},
    {"newWindowOfOpenIniTerm2", "Open iTerm2 in a new window",
        "Off: \"Open in iTerm2\" uses a tab of the front window."},
}};

// Each in its own words: what is on may agree with what it is.
constexpr CountTexts templatesOn{"%1$@ of %2$@ templates on: none", "%1$@ of %2$@ templates on: one",
    "%1$@ of %2$@ templates on: several"};
constexpr CountTexts iconsOn{
    "%1$@ of %2$@ icons on: none", "%1$@ of %2$@ icons on: one", "%1$@ of %2$@ icons on: several"};
constexpr CountTexts itemsOn{
    "%1$@ of %2$@ items on: none", "%1$@ of %2$@ items on: one", "%1$@ of %2$@ items on: several"};

constexpr std::array<MenuSection, 1> createNewFileSections{{{"New File", "", "createNewFile"}}};
constexpr std::array<MenuSection, 2> copyFilesToSections{
    {{"Copy to", "enableCopyFilesTo", "copyFilesTo"}, {"Move to", "enableMoveFilesTo", "moveFilesTo"}}};
constexpr std::array<MenuSection, 1> commonPathSections{
    {{"Common Folders", "enableCommonPath", "commonPath"}}};
constexpr std::array<MenuSection, 1> customIconSections{{{"Custom Icons", "", "customIcon"}}};

constexpr PerPage<PageLayout> layouts{
    PageLayout{"page-createNewFile", "New File",
        "Templates the menu offers for new files in the current folder.", RuleCategory::createNewFile,
        createNewFileSwitches, "Enable all templates", templatesOn, "Add Templates\u2026", "No templates",
        "Choose \u201CAdd Templates\u2026\u201D and pick a file: the menu then offers new files like it.",
        createNewFileSections},
    PageLayout{"page-copyFilesTo", "Copy & Move To", "Folders you can copy or move the selected files to.",
        RuleCategory::copyFilesTo, copyFilesToSwitches, "", {}, "Add Folders\u2026",
        "No folders to copy or move to",
        "Choose \u201CAdd Folders\u2026\u201D and pick a folder: the menu then copies or moves files there.",
        copyFilesToSections},
    PageLayout{"page-commonPath", "Common Folders", "Folders that are one click away in every menu.",
        RuleCategory::commonPath, commonPathSwitches, "", {}, "Add Folders\u2026", "No common folders",
        "Choose \u201CAdd Folders\u2026\u201D and pick a folder: the menu then opens it from anywhere.",
        commonPathSections},
    PageLayout{"page-customIcon", "Custom Icons",
        "Pictures to use as icons for the selected files and folders.", RuleCategory::customIcon,
        customIconSwitches, "Enable all icons", iconsOn, "Add Pictures\u2026", "No pictures",
        "Choose \u201CAdd Pictures\u2026\u201D and pick a PNG file: the menu then offers it as an icon.",
        customIconSections},
    PageLayout{"page-others", "More Items", "More menu actions, and applications to open files with.",
        RuleCategory::others, othersSwitches, "Enable all items", itemsOn, "Add Items\u2026", "No items",
        "Choose \u201CAdd Items\u2026\u201D and pick an item: the menu then shows it again.", {}},
    PageLayout{"page-moreApps", "More Apps", "Other applications by the makers of Tarnwick.", std::nullopt,
        {}, "", {}, "", "", "", {}},
};

constexpr std::array<AppTile, 3> tiles{{
    {"app-Snapfin", "Snapfin", "Takes, pins and annotates screenshots.", "View in Store", link::snapfin},
    {"app-Allbright", "Allbright", "Keeps the brightness of all displays in sync.", "View in Store",
        link::allbright},
    {"app-Website", "Website", "News, help and everything else we make.", "Visit", link::website},
}};

constexpr auto findPage(RuleCategory category) {
    return std::find_if(allPages.begin(), allPages.end(),
        [category](Page page) { return layouts[page].category == category; });
}
static_assert(std::all_of(allRuleCategories.begin(), allRuleCategories.end(),
    [](RuleCategory category) { return findPage(category) != allPages.end(); }));

} // namespace

const PageLayout& layoutOf(Page page) {
    return layouts[page];
}

Page pageOf(RuleCategory category) {
    return *findPage(category);
}

std::span<const AppTile> appTiles() {
    return tiles;
}

} // namespace tarnwick
