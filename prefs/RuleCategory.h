#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace tarnwick {

/// The five kinds of menu rules, in the order of their tables in the window.
enum class RuleCategory { createNewFile, copyFilesTo, commonPath, customIcon, others };

inline constexpr std::array allRuleCategories{RuleCategory::createNewFile, RuleCategory::copyFilesTo,
    RuleCategory::commonPath, RuleCategory::customIcon, RuleCategory::others};

/// What differs from one category to the next, a line each. An empty text: the category has no such thing.
struct RuleCategoryFacts {
    RuleCategory category;
    /// The preference key of the list, the same in both stores.
    std::string_view listKey;
    /// The boolean in `LocalPreferences` that says whether every record of the list is enabled.
    std::string_view enableAllKey;
    /// Where `LocalPreferences` remembers the folder last chosen by the add action.
    std::string_view rememberedFolderKey;
};

inline constexpr std::array<RuleCategoryFacts, 5> ruleCategoryFacts{{
    {RuleCategory::createNewFile, "arrOfCreateNewFile", "enableAllOfCreateNewFiles",
        "prePathOfCreateNewFile"},
    {RuleCategory::copyFilesTo, "arrOfCopyFilesTo", "", "prePathOfSendFilesTo"},
    {RuleCategory::commonPath, "arrOfCommonPath", "", "prePathOfCommonPath"},
    {RuleCategory::customIcon, "arrOfCustomIcon", "enableAllOfCustomIcon", "prePathOfCustomIcon"},
    {RuleCategory::others, "arrOfOthers", "enableAllOfOthers", ""},
}};

[[nodiscard]] constexpr const RuleCategoryFacts& factsOf(RuleCategory category) {
    return ruleCategoryFacts[static_cast<std::size_t>(category)];
}

} // namespace tarnwick
