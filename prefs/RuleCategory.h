#pragma once

#include "prefs/RuleRecord.h"
#include "values/EnumTable.h"

#include <array>
#include <string_view>

namespace tarnwick {

/// The kinds of menu rules, in the order of their tables in the window.
enum class RuleCategory { createNewFile, copyFilesTo, commonPath, customIcon, others };

inline constexpr std::array allRuleCategories{RuleCategory::createNewFile, RuleCategory::copyFilesTo,
    RuleCategory::commonPath, RuleCategory::customIcon, RuleCategory::others};

template <typename Value>
using PerCategory = EnumTable<RuleCategory, allRuleCategories.size(), Value>;

/// What is chosen for a new rule, and dropped on its page.
enum class RuleSource { files, folders };

/// What differs from one category to the next. An empty text: the category has no such thing.
struct RuleCategoryFacts {
    /// The preference key of the list, the same in both stores.
    std::string_view listKey;
    /// The boolean in `LocalPreferences` that says whether every record of the list is enabled.
    std::string_view enableAllKey;
    /// Where `LocalPreferences` remembers the folder last chosen by the add action; without one its chooser
    /// opens at the icons of the fixed items.
    std::string_view rememberedFolderKey;
    /// The identifier of the text field in which a record's name is edited.
    std::string_view nameIdentifier;
    /// What its chooser says is to be chosen; a key of the localisation table.
    std::string_view chooserMessage;
    /// The field that says that a record bears the user's own name for it; its name is a key of the
    /// localisation table until then. Without one a record may lack a name, and is then called after its
    /// folder.
    std::string_view nameMark;
    RuleSource source = RuleSource::files;
    /// The only file type that may be chosen; empty: any.
    std::string_view allowedType;
    bool choosesWithoutExtensions = false;
    bool takesDrops = true;
    bool hasFactoryList = true;
    /// A start that finds no records in the list puts it back to its factory state.
    bool isNeverEmpty = false;
    /// Its records have files of their own in the template folder.
    bool hasTemplateFiles = false;
    /// Each of its records bears a picture.
    bool hasPictures = false;
    /// Its records bear an "Action", some of which are fixed or protected.
    bool hasActions = false;
    /// Whose records are counted for a drop below the last row.
    RuleCategory countedAtDrop;
};

inline constexpr PerCategory<RuleCategoryFacts> ruleCategoryFacts{
    RuleCategoryFacts{.listKey = "arrOfCreateNewFile",
        .enableAllKey = "enableAllOfCreateNewFiles",
        .rememberedFolderKey = "prePathOfCreateNewFile",
        .nameIdentifier = "NewFileDisplayName",
        .chooserMessage = "Choose files: the menu then offers new ones like them.",
        .nameMark = field::modified,
        .hasTemplateFiles = true,
        .countedAtDrop = RuleCategory::createNewFile},
    RuleCategoryFacts{.listKey = "arrOfCopyFilesTo",
        .rememberedFolderKey = "prePathOfSendFilesTo",
        .nameIdentifier = "Note",
        .chooserMessage = "Choose folders that files are to be copied or moved to.",
        .source = RuleSource::folders,
        .countedAtDrop = RuleCategory::copyFilesTo},
    RuleCategoryFacts{.listKey = "arrOfCommonPath",
        .rememberedFolderKey = "prePathOfCommonPath",
        .nameIdentifier = "commonPathDisplayName",
        .chooserMessage = "Choose folders that the menu is to open.",
        .source = RuleSource::folders,
        .hasFactoryList = false,
        .countedAtDrop = RuleCategory::commonPath},
    RuleCategoryFacts{.listKey = "arrOfCustomIcon",
        .enableAllKey = "enableAllOfCustomIcon",
        .rememberedFolderKey = "prePathOfCustomIcon",
        .nameIdentifier = "CustomIconName",
        .chooserMessage = "Choose PNG pictures that the menu is to offer as icons.",
        .nameMark = field::modified,
        .allowedType = "png",
        .isNeverEmpty = true,
        .hasPictures = true,
        .countedAtDrop = RuleCategory::customIcon},
    RuleCategoryFacts{.listKey = "arrOfOthers",
        .enableAllKey = "enableAllOfOthers",
        .nameIdentifier = "OthersDisplayName",
        .chooserMessage = "Choose items that the menu is to show again.",
        .nameMark = field::nameModified,
        .allowedType = "png",
        .choosesWithoutExtensions = true,
        .takesDrops = false,
        .isNeverEmpty = true,
        .hasPictures = true,
        .hasActions = true,
        // Not its own, on purpose.
        .countedAtDrop = RuleCategory::customIcon},
};

[[nodiscard]] constexpr const RuleCategoryFacts& factsOf(RuleCategory category) {
    return ruleCategoryFacts[category];
}

/// The orders in which a start reads the lists, before and after the additions that older stores lack.
inline constexpr std::array loadedFirst{
    RuleCategory::copyFilesTo, RuleCategory::commonPath, RuleCategory::createNewFile};
inline constexpr std::array loadedLast{RuleCategory::customIcon, RuleCategory::others};
static_assert(loadedFirst.size() + loadedLast.size() == allRuleCategories.size());

/// The order in which a start publishes lists. The common paths are not among them, on purpose: they are
/// published when they are edited.
inline constexpr std::array publishedAtStart{
    RuleCategory::copyFilesTo, RuleCategory::customIcon, RuleCategory::others, RuleCategory::createNewFile};
static_assert(publishedAtStart.size() == allRuleCategories.size() - 1);

/// The order in which a start disables the remove buttons. That of Others is left as the layout has it.
inline constexpr std::array removingDisabledAtStart{RuleCategory::createNewFile, RuleCategory::customIcon,
    RuleCategory::copyFilesTo, RuleCategory::commonPath};
static_assert(removingDisabledAtStart.size() == allRuleCategories.size() - 1);

} // namespace tarnwick
