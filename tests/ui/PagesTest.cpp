#include "tests/support/SettingsFixture.h"

namespace tarnwick::testing {
namespace {

constexpr Colour gray{0.5, 0.5, 0.5, 0.4};

class PagesTest : public SettingsFixture {};

TEST_F(PagesTest, AfterTheStartTheFirstPageIsShownAndMarked) {
    launch();
    EXPECT_EQ(window_.tabs.selected, 0);
    EXPECT_EQ(window_.pageButtons[0].background, gray);
    for (std::size_t page = 1; page < pageCount; ++page) {
        EXPECT_EQ(window_.pageButtons[page].background, clearColour);
    }
}

struct PageCase {
    int index;
    void (SettingsViewController::*action)();
    bool reloadsTargets;
};

void PrintTo(const PageCase& page, std::ostream* stream) {
    *stream << "Page" << page.index;
}

class PageTest : public PagesTest, public ::testing::WithParamInterface<PageCase> {};

TEST_P(PageTest, IsShownMarkedAndReloadsWhatItShould) {
    launch();
    (controller_.*GetParam().action)();
    EXPECT_EQ(window_.tabs.selected, GetParam().index);
    for (int page = 0; page < static_cast<int>(pageCount); ++page) {
        EXPECT_EQ(window_.pageButtons[static_cast<std::size_t>(page)].background,
            page == GetParam().index ? gray : clearColour);
    }
    const auto expected = GetParam().reloadsTargets ? std::vector<std::string>{"reload copyFilesTo"}
                                                    : std::vector<std::string>{};
    EXPECT_EQ(platform_.log.lines(), expected);
}

INSTANTIATE_TEST_SUITE_P(Every, PageTest,
    ::testing::Values(PageCase{0, &SettingsViewController::createNewFilePressed, false},
        PageCase{1, &SettingsViewController::copyFilesToPressed, true},
        PageCase{2, &SettingsViewController::commonPathPressed, true},
        PageCase{3, &SettingsViewController::customIconFolder, true},
        PageCase{4, &SettingsViewController::otherOptionPressed, false},
        PageCase{5, &SettingsViewController::moreAppPressed, false}));

TEST_F(PagesTest, TheStartIsScheduledOnceAHundredthOfASecondLater) {
    controller_.awakeFromNib();
    EXPECT_EQ(platform_.runLoop.delays, std::vector<double>{0.01});
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
    EXPECT_TRUE(window_.removeButton(RuleCategory::others).enabled);
}

TEST_F(PagesTest, TheVersionLabelIsTheProductAColonABlankAndTheVersion) {
    platform_.bundle.texts["Tarnwick Lite"] = "Tarnwick Leicht";
    platform_.bundle.version = "2.5";
    controller_.awakeFromNib();
    EXPECT_EQ(window_.version.text, "Tarnwick Leicht: 2.5");
}

TEST_F(PagesTest, EveryTableDragsLinksOutMovesWithinAndAcceptsPlainStringsAlone) {
    controller_.awakeFromNib();
    for (const auto& table : window_.tables) {
        const std::vector<std::pair<std::uint32_t, DragScope>> masks{
            {2U, DragScope::outsideApplication}, {16U, DragScope::insideApplication}};
        EXPECT_EQ(table.dragMasks, masks);
        EXPECT_EQ(table.dragTypes, std::vector<std::string>{"NSStringPboardType"});
    }
}

TEST_F(PagesTest, TheRestartButtonIsHiddenUnlessTheSiblingRunsAtLoad) {
    controller_.awakeFromNib();
    EXPECT_TRUE(window_.restartFinderButton.hidden);
    platform_.runningApplications.running.insert("org.halvane.Allbright");
    controller_.createNewFilePressed();
    EXPECT_TRUE(window_.restartFinderButton.hidden);
}

TEST_F(PagesTest, TheRestartButtonIsShownWhenTheSiblingRunsAtLoad) {
    platform_.runningApplications.running.insert("org.halvane.Allbright");
    controller_.awakeFromNib();
    EXPECT_FALSE(window_.restartFinderButton.hidden);
}

TEST_F(PagesTest, TheHelpButtonIsRed) {
    controller_.awakeFromNib();
    EXPECT_EQ(window_.helpButton.titleColour, (Colour{1, 0, 0, 1}));
}

TEST_F(PagesTest, LoadingTheViewWritesItsLine) {
    controller_.viewDidLoad();
    EXPECT_EQ(platform_.log.lines(), std::vector<std::string>{"log ddd"});
}

TEST_F(PagesTest, ALinkOpensItsAddress) {
    controller_.openLink("https://example.org/");
    EXPECT_EQ(platform_.log.lines(), std::vector<std::string>{"open URL https://example.org/"});
}

struct ClickCase {
    RuleCategory category;
    void (SettingsViewController::*click)();
};

void PrintTo(const ClickCase& table, std::ostream* stream) {
    tarnwick::PrintTo(table.category, stream);
}

class TableClickTest : public PagesTest, public ::testing::WithParamInterface<ClickCase> {};

TEST_P(TableClickTest, EnablesTheRemoveButtonExactlyWhileARowIsSelected) {
    storeList(RuleCategory::copyFilesTo, {makeRecord({{"realPath", "/a"}})});
    storeList(RuleCategory::commonPath, {makeRecord({{"realPath", "/a"}})});
    launch();
    auto& table = window_.table(GetParam().category);
    const auto& button = window_.removeButton(GetParam().category);
    table.selected = 0;
    (controller_.*GetParam().click)();
    EXPECT_TRUE(button.enabled);
    table.selected = -1;
    (controller_.*GetParam().click)();
    EXPECT_FALSE(button.enabled);
}

INSTANTIATE_TEST_SUITE_P(Every, TableClickTest,
    ::testing::Values(ClickCase{RuleCategory::createNewFile, &SettingsViewController::createNewFileViewClick},
        ClickCase{RuleCategory::copyFilesTo, &SettingsViewController::copyFilesToViewClick},
        ClickCase{RuleCategory::commonPath, &SettingsViewController::commonPathViewClick},
        ClickCase{RuleCategory::customIcon, &SettingsViewController::customIconViewClick},
        ClickCase{RuleCategory::others, &SettingsViewController::othersViewClick}));

TEST_F(PagesTest, AClickOnAProtectedOthersRowDisablesTheButtonAndOnAnyOtherEnablesIt) {
    launch();
    for (long row = 0; row < 18; ++row) {
        window_.table(RuleCategory::others).selected = row;
        controller_.othersViewClick();
        const auto isProtected = row == 1 || row == 9 || row >= 15;
        EXPECT_EQ(window_.removeButton(RuleCategory::others).enabled, !isProtected) << row;
    }
}

TEST_F(PagesTest, MissingOutletsMakeTheirStepsNothing) {
    controller_.connect({});
    controller_.awakeFromNib();
    platform_.runLoop.runMain();
    controller_.moreAppPressed();
    controller_.othersViewClick();
    controller_.removeCommondPathRule();
    controller_.resetCopyFilesToRule();
    EXPECT_TRUE(controller_.acceptDrop(RuleCategory::others, RuleCategory::others, 2, 0));
    EXPECT_EQ(sharedList(RuleCategory::others).size(), 18U);
    EXPECT_EQ(sharedList(RuleCategory::copyFilesTo).size(), 4U);
}

} // namespace
} // namespace tarnwick::testing
