#include "tests/editing/OrderOfEffects.h"

namespace tarnwick::testing {
namespace {

INSTANTIATE_TEST_SUITE_P(Switching, OrderOfEffectsTest,
    ::testing::Values(
        Effects{"ATemplate",
            [](auto& window) {
                window.editing().toggling.set(RuleCategory::createNewFile, 0, field::enable, true);
            },
            stored("arrOfCreateNewFile") + Lines{"reload createNewFile"} + publishedTemplates()},
        Effects{"ATemplateInTheMainMenu",
            [](auto& window) {
                window.editing().toggling.set(RuleCategory::createNewFile, 0, field::enableMainMenu, true);
            },
            stored("arrOfCreateNewFile") + Lines{"reload createNewFile"} + publishedTemplates()},
        Effects{"ATarget",
            [](auto& window) {
                window.editing().toggling.set(RuleCategory::copyFilesTo, 0, field::enable, true);
            },
            stored("arrOfCopyFilesTo") + Lines{"reload copyFilesTo"} + publishedTargets()},
        Effects{"AnIcon",
            [](auto& window) {
                window.editing().toggling.set(RuleCategory::customIcon, 0, field::enable, false);
            },
            stored("arrOfCustomIcon") + Lines{"reload customIcon"} + publishedIcons(false)},
        Effects{"AnOthersItem",
            [](auto& window) {
                window.editing().toggling.set(RuleCategory::others, 0, field::enable, false);
            },
            stored("arrOfOthers") + Lines{"reload others"} + publishedOthers(false)},
        Effects{"AFixedOthersItem",
            [](auto& window) {
                window.editing().toggling.set(RuleCategory::others, 17, field::enable, false);
            },
            stored("arrOfOthers") + Lines{"reload others"} + publishedOthers()},
        Effects{"AllTemplates",
            [](auto& window) { window.editing().toggling.enableAll(RuleCategory::createNewFile); },
            Lines{"reload createNewFile", "local set arrOfCreateNewFile"} + publishedTemplates()},
        Effects{"AllIcons",
            [](auto& window) { window.editing().toggling.enableAll(RuleCategory::customIcon); },
            Lines{"reload customIcon", "local set arrOfCustomIcon"} + publishedIcons()},
        Effects{"AllOthers", [](auto& window) { window.editing().toggling.enableAll(RuleCategory::others); },
            Lines{"reload others", "local set arrOfOthers"} + publishedOthers()}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(Dropping, OrderOfEffectsTest,
    ::testing::Values(Effects{"ATemplate", [](auto& window) { window.drop(RuleCategory::createNewFile); },
                          Lines{"local set arrOfCreateNewFile"} + publishedTemplates() +
                              Lines{"reload createNewFile", "deselect createNewFile"}},
        Effects{"ATarget", [](auto& window) { window.drop(RuleCategory::copyFilesTo); },
            Lines{"local set arrOfCopyFilesTo"} + publishedTargets() +
                Lines{"reload copyFilesTo", "deselect copyFilesTo"}},
        Effects{"APath", [](auto& window) { window.drop(RuleCategory::commonPath); },
            Lines{"local set arrOfCommonPath"} + publishedPaths() +
                Lines{"reload commonPath", "deselect commonPath"}},
        Effects{"AnIcon", [](auto& window) { window.drop(RuleCategory::customIcon); },
            Lines{"local set arrOfCustomIcon"} + publishedIcons() +
                Lines{"reload customIcon", "deselect customIcon"}},
        Effects{"AnOthersItem", [](auto& window) { window.drop(RuleCategory::others); },
            Lines{"local set arrOfOthers"} + publishedOthers() + Lines{"reload others", "deselect others"}}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(Editing, OrderOfEffectsTest,
    ::testing::Values(
        Effects{"TheNameOfATemplate", [](auto& window) { window.edit("NewFileDisplayName"); },
            noted() + stored("arrOfCreateNewFile") + Lines{"reload createNewFile"} + publishedTemplates() +
                Lines{"move " + templateFolder + "/TXT.txt -> " + templateFolder + "/New.txt"} + forgotten()},
        Effects{"TheNameOfATarget", [](auto& window) { window.edit("Note"); },
            stored("arrOfCopyFilesTo") + Lines{"reload copyFilesTo"} + publishedTargets()},
        Effects{"TheNameOfATargetByItsOtherIdentifier", [](auto& window) { window.edit("newFileName"); },
            stored("arrOfCopyFilesTo") + Lines{"reload copyFilesTo"} + publishedTargets()},
        Effects{"TheNameOfAPath", [](auto& window) { window.edit("commonPathDisplayName"); },
            stored("arrOfCommonPath") + Lines{"reload commonPath"} + publishedPaths()},
        Effects{"TheNameOfAnIcon", [](auto& window) { window.edit("CustomIconName"); },
            stored("arrOfCustomIcon") + Lines{"reload customIcon"} + publishedIcons()},
        Effects{"TheTitleOfAnOthersItem", [](auto& window) { window.edit("OthersDisplayName"); },
            stored("arrOfOthers") + Lines{"reload others"} + publishedOthers()},
        Effects{"TheNoteOfAnOthersItem", [](auto& window) { window.edit("OthersNote"); },
            stored("arrOfOthers") + Lines{"reload others"} + publishedOthers()}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(Resetting, OrderOfEffectsTest,
    ::testing::Values(
        Effects{"Targets", [](auto& window) { window.editing().resetting.reset(RuleCategory::copyFilesTo); },
            stored("arrOfCopyFilesTo") + Lines{"reload copyFilesTo", "disable remove copyFilesTo"} +
                publishedTargets()},
        Effects{"Icons", [](auto& window) { window.editing().resetting.reset(RuleCategory::customIcon); },
            stored("arrOfCustomIcon") + Lines{"reload customIcon", "disable remove customIcon"} +
                publishedIcons()},
        Effects{"Others", [](auto& window) { window.editing().resetting.reset(RuleCategory::others); },
            stored("arrOfOthers") + Lines{"reload others", "disable remove others"} + publishedOthers()}),
    nameOf);

} // namespace
} // namespace tarnwick::testing
