#include "tests/gui/Around.h"
#include "tests/gui/Controls.h"
#include "tests/gui/Driver.h"
#include "tests/gui/Health.h"
#include "tests/gui/Input.h"
#include "tests/gui/Shown.h"

#include <gtest/gtest.h>

namespace tarnwick::gui {
namespace {

constexpr auto off = "The Finder reports that the extension of Tarnwick is turned off.";
constexpr auto missing = "This copy of Tarnwick carries no Finder extension, so it has no menu.";
constexpr auto copy = "The system knows another copy of Tarnwick, at /Volumes/Old/Tarnwick.app.";
constexpr auto forcedList = "An administrator has set these lists, changes do not last: Common Folders.";

void comeBackTo(const std::string& answers) {
    setSystemState(answers);
    comeBack();
    settle();
}

TEST(Around, EachStateIsSaidAtTheHeadOfTheWindowAndGoesByItself) {
    clickPageButton(Page::commonPath);
    const auto height = listHeight(RuleCategory::commonPath);
    for (const auto& [answers, text] :
        {std::pair{"extensionIsOff = 1;", off}, std::pair{"carriesNoExtension = 1;", missing},
            std::pair{"copies = (\"/Volumes/Old/Tarnwick.app\");", copy},
            std::pair{"forced = (arrOfCommonPath);", forcedList}}) {
        comeBackTo(answers);
        EXPECT_TRUE(showsNotice(text)) << text;
        EXPECT_LT(listHeight(RuleCategory::commonPath), height);
        comeBackTo("");
        EXPECT_FALSE(showsNotice(text)) << text;
        EXPECT_EQ(listHeight(RuleCategory::commonPath), height);
    }
}

TEST(Around, ASwitchThatAnAdministratorHasSetCannotBeClickedAndSaysWhy) {
    clickPageButton(Page::commonPath);
    const auto before = toolTipOfButton("Offer these folders in the menu");
    comeBackTo("forced = (enableCommonPath);");
    EXPECT_FALSE(buttonIsEnabled("Offer these folders in the menu"));
    EXPECT_EQ(toolTipOfButton("Offer these folders in the menu"),
        "An administrator has set this; it cannot be changed here.");
    EXPECT_TRUE(buttonIsEnabled("Show icons in the menu"));
    comeBackTo("");
    EXPECT_TRUE(buttonIsEnabled("Offer these folders in the menu"));
    EXPECT_EQ(toolTipOfButton("Offer these folders in the menu"), before);
}

TEST(Around, NoticesAreReachedByKeyboardAndPutAwayUntilTheNextStart) {
    comeBackTo("extensionIsOff = 1; copies = (\"/Volumes/Old/Tarnwick.app\");");
    takePicture("notices");
    EXPECT_TRUE(tabTo("Turn On\u2026"));
    EXPECT_TRUE(tabTo("Show in Finder"));
    clickButton("Put Away");
    EXPECT_FALSE(showsNotice(off));
    EXPECT_TRUE(showsNotice(copy));
    comeBack();
    settle();
    EXPECT_FALSE(showsNotice(off));
    comeBackTo("");
}

} // namespace
} // namespace tarnwick::gui
