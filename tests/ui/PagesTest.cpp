#include "prefs/PreferenceKeys.h"
#include "tests/support/SettingsFixture.h"

#include <algorithm>

namespace tarnwick::testing {
namespace {

constexpr Colour gray{0.5, 0.5, 0.5, 0.4};

class PagesTest : public SettingsFixture {
protected:
    /// The page is shown, and its button alone is marked.
    void expectShown(Page page) const {
        EXPECT_EQ(window_.page, page);
        for (const auto other : allPages) {
            EXPECT_EQ(window_.pageButtons[other], other == page ? gray : clearColour);
        }
    }
};

TEST_F(PagesTest, AfterTheStartTheFirstPageIsShownAndMarked) {
    launch();
    expectShown(Page::createNewFile);
}

TEST_F(PagesTest, TheFirstPageIsMarkedBeforeTheStartSinceTheWindowIsSeenBefore) {
    controller_.awakeFromNib();
    EXPECT_EQ(window_.pageButtons[Page::createNewFile], gray);
}

class PageTest : public PagesTest, public ::testing::WithParamInterface<Page> {};

TEST_P(PageTest, IsShownMarkedAndReloadsWhatItShould) {
    launch();
    const auto page = GetParam();
    controller_.showPage(page);
    expectShown(page);
    const auto reloadsTargets =
        page == Page::copyFilesTo || page == Page::commonPath || page == Page::customIcon;
    const auto expected =
        reloadsTargets ? std::vector<std::string>{"reload copyFilesTo"} : std::vector<std::string>{};
    EXPECT_EQ(platform_.log.lines(), expected);
}

INSTANTIATE_TEST_SUITE_P(Every, PageTest, ::testing::ValuesIn(allPages));

TEST_F(PagesTest, AnotherPageIsShownOnceTheNameInProgressIsStored) {
    storeList(RuleCategory::commonPath, {makeRecord({{"enable", 1}, {"displayName", "A"}})});
    launch();
    window_.openEdit = [this] { controller_.textEdited("commonPathDisplayName", 0, "New"); };
    controller_.showPage(Page::customIcon);
    EXPECT_EQ(texts(localList(RuleCategory::commonPath), "displayName"), std::vector<std::string>{"New"});
    EXPECT_EQ(platform_.log.lines().front(), "end edit");
    EXPECT_EQ(platform_.log.lines().back(), "reload copyFilesTo");
}

TEST_F(PagesTest, AStepThatIsTakenBackOrRepeatedShowsItsPageAndSelectsItsRow) {
    storeList(RuleCategory::commonPath, {makeRecord({{"enable", 1}, {"displayName", "A"}})});
    launch();
    controller_.textEdited("commonPathDisplayName", 0, "New");
    controller_.showPage(Page::customIcon);
    platform_.undoHistory.undo();
    expectShown(Page::commonPath);
    EXPECT_EQ(window_.selectedRow(RuleCategory::commonPath), 0);
    controller_.showPage(Page::moreApps);
    platform_.undoHistory.redo();
    expectShown(Page::commonPath);
}

TEST_F(PagesTest, AClickInATableAndAMirroredSwitchLeaveAnEditOpen) {
    launch();
    window_.openEdit = [] {};
    controller_.tableClicked(RuleCategory::commonPath);
    controller_.switchChanged("enableCommonPath", false);
    EXPECT_TRUE(window_.openEdit);
}

TEST_F(PagesTest, TheStartIsScheduledOnceAHundredthOfASecondLater) {
    controller_.awakeFromNib();
    EXPECT_EQ(platform_.runLoop.delays, std::vector<double>{0.01});
}

TEST_F(PagesTest, TheStepsOfALoadFollowEachOtherInOrder) {
    controller_.awakeFromNib();
    const std::vector<std::string> milestones{"shared set soundTipsOfNewFile",
        "local set deleteDirectlyRequiresConfirmation", "local set enableCopyPathToPaste",
        "shared set arrOfEnableOther", "local set arrOfCreateNewFile",
        "create folder /container/Templates/CreateNewFile", "create folder /container/Templates/FunctionIcon",
        "create folder /container/Templates/OthersMenuItemIcon", "schedule", "local set arrOfCustomIcon",
        "local set arrOfOthers", "observe soundTipsOfSendFilesTo",
        "observe deleteDirectlyRequiresConfirmation"};
    const auto& lines = platform_.log.lines();
    auto place = lines.begin();
    for (const auto& milestone : milestones) {
        place = std::find(place, lines.end(), milestone);
        ASSERT_NE(place, lines.end()) << milestone;
    }
}

TEST_F(PagesTest, TheStartPublishesFourListsInOrderAndNotTheCommonPaths) {
    controller_.awakeFromNib();
    platform_.log.clear();
    platform_.runLoop.runMain();
    EXPECT_EQ(platform_.log.linesWith("shared set "),
        (std::vector<std::string>{"shared set arrOfCopyFilesTo", "shared set arrOfCustomIcon",
            "shared set arrOfOthers", "shared set arrOfCreateNewFile"}));
    EXPECT_EQ(platform_.preferences.shared.count("arrOfCommonPath"), 0U);
}

TEST_F(PagesTest, TheStartChecksTheExtensionThenPublishesThenDisablesButtonsThenObserves) {
    controller_.awakeFromNib();
    platform_.log.clear();
    platform_.runLoop.runMain();
    const auto& lines = platform_.log.lines();
    EXPECT_EQ(lines[0], "ask whether the extension is enabled");
    EXPECT_EQ(lines[1], "queue on main");
    EXPECT_EQ(platform_.log.linesWith("disable "),
        (std::vector<std::string>{"disable remove createNewFile", "disable remove customIcon",
            "disable remove copyFilesTo", "disable remove commonPath"}));
    EXPECT_TRUE(platform_.log.holds("observe applications"));
    EXPECT_TRUE(window_.table(RuleCategory::others).canRemove);
}

TEST_F(PagesTest, ThePromptComesAfterThatAndItsFlagIsSetOnceItIsClosed) {
    controller_.awakeFromNib();
    platform_.runLoop.runMain();
    const auto& lines = platform_.log.lines();
    const auto tail = std::vector<std::string>(lines.end() - 4, lines.end());
    EXPECT_EQ(tail, (std::vector<std::string>{"observe applications", "alert Enable Extension",
                        "show extension management", "local set ShownEnableExtensionAlert"}));
}

TEST_F(PagesTest, TheVersionLabelIsTheProductAColonABlankAndTheVersion) {
    platform_.bundle.texts["Tarnwick Lite"] = "Tarnwick Leicht";
    platform_.bundle.version = "2.5";
    controller_.awakeFromNib();
    EXPECT_EQ(window_.version, "Tarnwick Leicht: 2.5");
}

TEST_F(PagesTest, EveryTableDragsLinksOutMovesWithinAndAcceptsPlainStringsAlone) {
    controller_.awakeFromNib();
    ASSERT_EQ(window_.drags.size(), allRuleCategories.size());
    for (std::size_t index = 0; index < window_.drags.size(); ++index) {
        const auto& drag = window_.drags[index];
        EXPECT_EQ(drag.category, allRuleCategories[index]);
        EXPECT_EQ(drag.outside, 2U);
        EXPECT_EQ(drag.inside, 16U);
        EXPECT_EQ(drag.type, "NSStringPboardType");
    }
}

TEST_F(PagesTest, TheRestartButtonIsHiddenUnlessTheSiblingRunsAtLoad) {
    controller_.awakeFromNib();
    EXPECT_TRUE(window_.restartButtonIsHidden);
    platform_.workspace.running.insert("org.halvane.Allbright");
    controller_.showPage(Page::createNewFile);
    EXPECT_TRUE(window_.restartButtonIsHidden);
}

TEST_F(PagesTest, TheRestartButtonIsShownWhenTheSiblingRunsAtLoad) {
    platform_.workspace.running.insert("org.halvane.Allbright");
    controller_.awakeFromNib();
    EXPECT_FALSE(window_.restartButtonIsHidden);
}

TEST_F(PagesTest, TheHelpButtonIsRed) {
    controller_.awakeFromNib();
    EXPECT_EQ(window_.helpTitle, (Colour{1, 0, 0, 1}));
}

TEST_F(PagesTest, LoadingTheViewWritesItsLine) {
    controller_.viewDidLoad();
    EXPECT_EQ(platform_.log.lines(), std::vector<std::string>{"log ddd"});
}

class TableClickTest : public PagesTest, public ::testing::WithParamInterface<RuleCategory> {};

TEST_P(TableClickTest, EnablesTheRemoveButtonExactlyWhileARowIsSelected) {
    storeList(RuleCategory::copyFilesTo, {makeRecord({{"realPath", "/a"}})});
    storeList(RuleCategory::commonPath, {makeRecord({{"realPath", "/a"}})});
    launch();
    auto& table = window_.table(GetParam());
    table.selected = 0;
    controller_.tableClicked(GetParam());
    EXPECT_TRUE(table.canRemove);
    table.selected = -1;
    controller_.tableClicked(GetParam());
    EXPECT_FALSE(table.canRemove);
}

INSTANTIATE_TEST_SUITE_P(Every, TableClickTest, ::testing::ValuesIn(allRuleCategories));

TEST_F(PagesTest, AMovedRowsRemoveButtonFollowsTheSelection) {
    storeList(RuleCategory::commonPath, {makeRecord({{"realPath", "/a"}}), makeRecord({{"realPath", "/b"}})});
    launch();
    window_.table(RuleCategory::commonPath).selected = 0;
    controller_.moveSelectedRule(RuleCategory::commonPath, MoveDirection::down);
    EXPECT_TRUE(window_.table(RuleCategory::commonPath).canRemove);
    EXPECT_EQ(platform_.log.lines().back(), "enable remove commonPath");
}

TEST_F(PagesTest, AClickOnAProtectedOthersRowDisablesTheButtonAndOnAnyOtherEnablesIt) {
    launch();
    for (long row = 0; row < 18; ++row) {
        window_.table(RuleCategory::others).selected = row;
        controller_.tableClicked(RuleCategory::others);
        const auto isProtected = row == 1 || row == 9 || row >= 15;
        EXPECT_EQ(window_.table(RuleCategory::others).canRemove, !isProtected) << row;
    }
}

TEST_F(PagesTest, TheThirteenSwitchesAreObservedInOrder) {
    controller_.awakeFromNib();
    std::vector<std::string> expected;
    for (const auto& key : mirroredKeys) {
        expected.push_back("observe " + std::string(key));
    }
    EXPECT_EQ(platform_.log.linesWith("observe "), expected);
}

} // namespace
} // namespace tarnwick::testing
