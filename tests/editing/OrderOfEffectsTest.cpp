#include "tests/editing/OrderOfEffects.h"

namespace tarnwick::testing {
namespace {

TEST_P(OrderOfEffectsTest, TheStepsFollowOneAnotherExactly) {
    GetParam().edit(*this);
    EXPECT_EQ(platform_.log.lines(), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Adding, OrderOfEffectsTest,
    ::testing::Values(
        Effects{"Templates",
            [](auto& window) {
                window.add(RuleCategory::createNewFile, {"/home/Gone.txt", "/home/Letter.txt"});
            },
            Lines{"open panel"} + noted() +
                Lines{"local synchronise", "copy /home/Gone.txt -> " + templateFolder + "/Gone.txt",
                    "copy /home/Letter.txt -> " + templateFolder + "/Letter.txt",
                    "local set prePathOfCreateNewFile"} +
                Lines{"local set arrOfCreateNewFile"} + forgotten() +
                Lines{"local synchronise", "reload createNewFile"} + publishedTemplates() +
                Lines{"scroll createNewFile 15"}},
        Effects{"Targets", [](auto& window) { window.add(RuleCategory::copyFilesTo, {"/a/Zoo"}); },
            Lines{"open panel", "local set prePathOfSendFilesTo"} + stored("arrOfCopyFilesTo") +
                Lines{"reload copyFilesTo"} + publishedTargets() + Lines{"scroll copyFilesTo 3"}},
        Effects{"Paths", [](auto& window) { window.add(RuleCategory::commonPath, {"/a/Zoo"}); },
            Lines{"open panel", "local set prePathOfCommonPath"} + stored("arrOfCommonPath") +
                Lines{"reload commonPath"} + publishedPaths() + Lines{"scroll commonPath 3"}},
        Effects{"Icons", [](auto& window) { window.add(RuleCategory::customIcon, {"/home/Blue.png"}); },
            Lines{"open panel", "local set prePathOfCustomIcon"} + stored("arrOfCustomIcon") +
                Lines{"reload customIcon"} + publishedIcons() + Lines{"scroll customIcon 20"}},
        Effects{"Others", [](auto& window) { window.add(RuleCategory::others, {"/x/Cut.png"}); },
            Lines{"open panel"} + stored("arrOfOthers") + Lines{"reload others"} + publishedOthers() +
                Lines{"scroll others 18"}}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(Removing, OrderOfEffectsTest,
    ::testing::Values(
        Effects{"ATemplate", [](auto& window) { window.remove(RuleCategory::createNewFile, 2); },
            noted() + stored("arrOfCreateNewFile") + Lines{"reload createNewFile"} +
                held(templateFolder + "/XML.xml") + forgotten() + Lines{"select createNewFile 1"} +
                publishedTemplates()},
        Effects{"ATarget", [](auto& window) { window.remove(RuleCategory::copyFilesTo, 2); },
            stored("arrOfCopyFilesTo") + Lines{"reload copyFilesTo", "select copyFilesTo 1"} +
                publishedTargets()},
        Effects{"APath", [](auto& window) { window.remove(RuleCategory::commonPath, 2); },
            stored("arrOfCommonPath") + Lines{"reload commonPath", "select commonPath 1"} + publishedPaths()},
        Effects{"AnIcon", [](auto& window) { window.remove(RuleCategory::customIcon, 2); },
            stored("arrOfCustomIcon") + Lines{"reload customIcon", "select customIcon 1"} + publishedIcons()},
        Effects{"AnOthersItem", [](auto& window) { window.remove(RuleCategory::others, 5); },
            stored("arrOfOthers") + Lines{"reload others", "select others 4"} + publishedOthers()},
        Effects{"AnOthersItemBelowAProtectedOne",
            [](auto& window) { window.remove(RuleCategory::others, 2); },
            stored("arrOfOthers") + Lines{"reload others", "select others 1"} + publishedOthers() +
                Lines{"disable remove others"}},
        Effects{"TheFirstOthersItemAboveAProtectedOne",
            [](auto& window) { window.remove(RuleCategory::others, 0); },
            stored("arrOfOthers") + Lines{"reload others", "select others 0"} + publishedOthers() +
                Lines{"disable remove others"}}),
    nameOf);

} // namespace
} // namespace tarnwick::testing
