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
constexpr auto forcedList = "An administrator sets these lists and undoes changes: Common Folders.";

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

TEST(Around, ANoticeIsAsHighAsItsTextAndInTheMiddleOfItsLine) {
    comeBackTo("extensionIsOff = 1;");
    const auto one = placeOfNotice(off);
    EXPECT_GT(one.textHeight, 10);
    EXPECT_LT(one.textHeight, 22);
    EXPECT_NEAR(one.aboveMiddle, 0, 0.5);
    const std::string folder(300, 'x');
    comeBackTo("copies = (\"/Volumes/Old versions of " + folder + "/Tarnwick.app\");");
    const auto several =
        placeOfNotice("The system knows another copy of Tarnwick, at /Volumes/Old versions of " + folder +
                      "/Tarnwick.app.");
    EXPECT_GT(several.textHeight, 2.5 * one.textHeight);
    EXPECT_GT(several.height, several.textHeight);
    EXPECT_GT(several.height, one.height);
    EXPECT_NEAR(several.aboveMiddle, 0, 0.5);
    comeBackTo("");
}

TEST(Around, ASwitchThatAnAdministratorHasSetCannotBeClickedAndSaysWhy) {
    clickPageButton(Page::commonPath);
    const auto before = toolTipOfButton("Offer these folders in the menu");
    comeBackTo("forced = (enableCommonPath);");
    EXPECT_FALSE(buttonIsEnabled("Offer these folders in the menu"));
    EXPECT_EQ(toolTipOfButton("Offer these folders in the menu"),
        "An administrator has set this and keeps it as it is.");
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
