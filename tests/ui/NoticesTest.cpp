#include "ui/Notices.h"
#include "prefs/PreferenceKeys.h"
#include "tests/support/SettingsFixture.h"

namespace tarnwick::testing {
namespace {

class NoticesTest : public SettingsFixture {
protected:
    void SetUp() override {
        launch();
        controller_.warnings().watch();
    }
    /// What the window says once the user comes back.
    [[nodiscard]] const std::vector<Notice>& notices() {
        controller_.warnings().applicationActivated();
        return window_.notices;
    }
    /// The text of the only notice.
    [[nodiscard]] std::string text() {
        const auto& shown = notices();
        EXPECT_EQ(shown.size(), 1U);
        return shown.empty() ? "" : shown.front().text;
    }
    void registerCopies(std::vector<std::string> paths) {
        platform_.workspace.registered[std::string(applicationIdentifier)].paths = std::move(paths);
    }
};

TEST_F(NoticesTest, NothingIsSaidWhileAllIsWell) {
    registerCopies({"/Applications/Tarnwick.app"});
    EXPECT_TRUE(notices().empty());
    EXPECT_TRUE(window_.forcedSwitches.empty());
}

TEST_F(NoticesTest, AnExtensionThatIsOffIsSaidSoonAfterTheStartAndLeadsToWhereItIsTurnedOn) {
    platform_.bundle.extensionEnabled = false;
    EXPECT_TRUE(window_.notices.empty());
    platform_.runLoop.runMain();
    ASSERT_EQ(window_.notices.size(), 1U);
    EXPECT_EQ(window_.notices[0].text, "The Finder reports that the extension of Tarnwick is turned off.");
    EXPECT_STREQ(titleOf(window_.notices[0].step), "Turn On\u2026");
    platform_.log.clear();
    controller_.warnings().take(window_.notices[0]);
    EXPECT_EQ(platform_.log.lines(), std::vector<std::string>{"show extension management"});
}

TEST_F(NoticesTest, ANoticeGoesByItselfWhenTheUserComesBackToABetterState) {
    platform_.bundle.extensionEnabled = false;
    EXPECT_EQ(notices().size(), 1U);
    platform_.bundle.extensionEnabled = true;
    EXPECT_TRUE(notices().empty());
}

TEST_F(NoticesTest, ACopyWithoutExtensionIsSaidInPlaceOfOneThatIsOff) {
    platform_.bundle.extension = false;
    platform_.bundle.extensionEnabled = false;
    EXPECT_EQ(text(), "This copy of Tarnwick carries no Finder extension, so it has no menu.");
    EXPECT_EQ(window_.notices[0].step, NoticeStep::none);
}

TEST_F(NoticesTest, AnotherCopyIsSaidWithItsPlaceAndShown) {
    registerCopies({"/Applications/Tarnwick.app", "/Volumes/Old/Tarnwick.app"});
    EXPECT_EQ(text(), "The system knows another copy of Tarnwick, at /Volumes/Old/Tarnwick.app.");
    EXPECT_STREQ(titleOf(window_.notices[0].step), "Show in Finder");
    platform_.log.clear();
    controller_.warnings().take(window_.notices[0]);
    ASSERT_EQ(platform_.log.lines().size(), 1U);
    EXPECT_NE(platform_.log.lines()[0].find("/Volumes/Old/Tarnwick.app"), std::string::npos);
}

TEST_F(NoticesTest, WhatIsPutAwayStaysAwayAndTheOthersStay) {
    platform_.bundle.extensionEnabled = false;
    registerCopies({"/Volumes/Old/Tarnwick.app"});
    EXPECT_EQ(notices().size(), 2U);
    controller_.warnings().putAway(NoticeKind::extensionOff);
    ASSERT_EQ(window_.notices.size(), 1U);
    EXPECT_EQ(notices()[0].kind, NoticeKind::otherCopy);
}

TEST_F(NoticesTest, ListsThatAnAdministratorHasSetAreSaidByTheirPages) {
    platform_.preferences.forced = {"arrOfCommonPath", "arrOfOthers"};
    EXPECT_EQ(text(), "An administrator sets these lists and undoes changes: Common Folders, More Items.");
}

TEST_F(NoticesTest, SwitchesThatAnAdministratorHasSetAreSaidToTheWindow) {
    platform_.preferences.forced = {"enableCommonPath", "enableAllOfOthers", "unknown"};
    controller_.warnings().applicationActivated();
    EXPECT_EQ(window_.forcedSwitches,
        (std::set<std::string, std::less<>>{"enableCommonPath", "enableAllOfOthers"}));
    platform_.preferences.forced.clear();
    controller_.warnings().applicationActivated();
    EXPECT_TRUE(window_.forcedSwitches.empty());
}

TEST_F(NoticesTest, LookingAroundWritesNothingAndAsksNoQuestionOfTheUser) {
    platform_.bundle.extensionEnabled = false;
    platform_.log.clear();
    controller_.warnings().applicationActivated();
    EXPECT_TRUE(platform_.log.linesWith("local").empty());
    EXPECT_TRUE(platform_.log.linesWith("shared").empty());
    EXPECT_TRUE(platform_.panels.alerts.size() == 1U) << "the prompt of the first launch alone";
}

} // namespace
} // namespace tarnwick::testing
