#include "tests/support/Categories.h"
#include "tests/support/SettingsFixture.h"

namespace tarnwick::testing {
namespace {

class RuleHealthTest : public SettingsFixture {
protected:
    static RuleRecord folder(std::string path) {
        return makeRecord({{"enable", 1}, {"realPath", std::move(path)}, {"displayName", ""}});
    }
    /// Launches with these common folders, of which those that exist are in `existing`.
    void launchWith(std::vector<std::string> paths, const std::vector<std::string>& existing = {}) {
        std::vector<RuleRecord> records;
        for (auto& path : paths) {
            records.push_back(folder(std::move(path)));
        }
        storeList(folders, std::move(records));
        platform_.files.folders.insert(existing.begin(), existing.end());
        launch();
        controller_.warnings().watch();
        show(Page::commonPath);
    }
    void show(Page page) {
        controller_.showPage(page);
        platform_.runLoop.runMain();
    }
    [[nodiscard]] CellRemark remark(RuleCategory category, long row, std::string_view column = "realPath") {
        return controller_.warnings().remarks().of(category, column, row);
    }
    [[nodiscard]] std::string help(RuleCategory category, long row) { return remark(category, row).help; }
    [[nodiscard]] std::vector<std::string>& asked() { return platform_.files.asked; }
};

TEST_F(RuleHealthTest, TheControlsOfAFixedRuleSayWhyTheyDoNothing) {
    launch();
    const auto last = controller_.rows().count(RuleCategory::others) - 1;
    for (const auto* column : {"OthersEnable", "OthersDisplayName", "OthersNote"}) {
        const auto fixed = remark(RuleCategory::others, last, column);
        EXPECT_EQ(fixed.help, "This item is always on and keeps its name and its place.") << column;
        EXPECT_EQ(fixed.toolTip, fixed.help) << column;
        EXPECT_FALSE(fixed.warns) << column;
        EXPECT_EQ(remark(RuleCategory::others, 0, column), CellRemark{}) << column;
    }
    EXPECT_EQ(remark(RuleCategory::others, last, "OthersIcon"), CellRemark{});
}

TEST_F(RuleHealthTest, AFolderThatIsNotThereIsSaidOnItsRowAndBelowTheTable) {
    launchWith({"/a", "/gone"}, {"/a"});
    EXPECT_EQ(remark(folders, 0, "commonPathDisplayName"), CellRemark{});
    const auto gone = remark(folders, 1, "commonPathDisplayName");
    EXPECT_TRUE(gone.warns);
    EXPECT_EQ(gone.help, "This folder cannot be found. Choose it anew, or remove the rule.");
    EXPECT_EQ(gone.toolTip, gone.help);
    EXPECT_EQ(window_.faults[folders], "1 folder cannot be found");
}

TEST_F(RuleHealthTest, AFileInTheFoldersPlaceIsAnotherFault) {
    platform_.files.files["/file"] = "";
    launchWith({"/file"});
    EXPECT_EQ(help(folders, 0), "This is a file, not a folder. Choose a folder, or remove the rule.");
    EXPECT_EQ(window_.faults[folders], "1 rule leads to a file instead of a folder");
}

TEST_F(RuleHealthTest, ATargetWithoutAFolderIsAskedForOneWithoutALook) {
    launchWith({"Undefined", ""});
    EXPECT_EQ(
        help(folders, 0), "No folder has been chosen for this rule yet. Choose one, or remove the rule.");
    EXPECT_EQ(help(folders, 1), help(folders, 0));
    EXPECT_EQ(window_.faults[folders], "2 rules have no folder yet");
    EXPECT_TRUE(asked().empty());
}

TEST_F(RuleHealthTest, ASystemThatRefusesToSayLeavesTheRuleAlone) {
    platform_.files.answers["/secret"] = FileKind::unknown;
    launchWith({"/secret"});
    EXPECT_FALSE(remark(folders, 0).warns);
    EXPECT_EQ(window_.faults[folders], "");
}

TEST_F(RuleHealthTest, ATemplateThatHasLostItsFileIsSaid) {
    launch();
    controller_.warnings().watch();
    platform_.runLoop.runMain();
    EXPECT_EQ(window_.faults[RuleCategory::createNewFile], "");
    platform_.files.files.erase("/container/Templates/CreateNewFile/TXT.txt");
    show(Page::createNewFile);
    EXPECT_EQ(help(RuleCategory::createNewFile, 0),
        "The file of this template is missing. Remove the rule and add the file again.");
    EXPECT_FALSE(remark(RuleCategory::createNewFile, 1).warns);
    EXPECT_EQ(window_.faults[RuleCategory::createNewFile], "1 template has lost its file");
}

TEST_F(RuleHealthTest, WithoutTheSharedFolderNothingIsSaidOfTemplates) {
    launch();
    platform_.folders.container.reset();
    controller_.warnings().watch();
    show(Page::createNewFile);
    EXPECT_EQ(window_.faults[RuleCategory::createNewFile], "");
    EXPECT_TRUE(asked().empty());
}

TEST_F(RuleHealthTest, APictureThatCannotBeShownIsSaid) {
    storeList(RuleCategory::customIcon, {makeRecord({{"displayName", "Good"}, {"icon", tiffOf("tiff good")}}),
                                            makeRecord({{"displayName", "Bad"}, {"icon", PlistData({1, 2})}}),
                                            makeRecord({{"displayName", "None"}})});
    launch();
    controller_.warnings().watch();
    show(Page::customIcon);
    EXPECT_FALSE(remark(RuleCategory::customIcon, 0).warns);
    EXPECT_EQ(help(RuleCategory::customIcon, 1),
        "This picture cannot be shown. Remove the rule and add the picture again.");
    EXPECT_EQ(window_.faults[RuleCategory::customIcon], "2 pictures cannot be shown");
}

TEST_F(RuleHealthTest, AFurtherItemMayLackAPictureButNotHaveABrokenOne) {
    storeList(RuleCategory::others, {makeRecord({{"Action", "Open in VSCode"}}),
                                        makeRecord({{"Action", "Broken"}, {"icon", PlistData({1})}})});
    launch();
    controller_.warnings().watch();
    show(Page::others);
    EXPECT_FALSE(remark(RuleCategory::others, 0).warns);
    EXPECT_EQ(window_.faults[RuleCategory::others], "1 picture cannot be shown");
}

TEST_F(RuleHealthTest, WhatCameWithTheApplicationHasNoFault) {
    launch();
    controller_.warnings().watch();
    for (const auto page : allPages) {
        show(page);
    }
    for (const auto category : allRuleCategories) {
        EXPECT_EQ(window_.faults[category], "");
    }
}

TEST_F(RuleHealthTest, FaultsOfSeveralKindsAreCountedTogether) {
    platform_.files.files["/file"] = "";
    platform_.bundle.texts = {{"Something is wrong with %@ rules", "%@ faults"}};
    launchWith({"/gone", "Undefined", "/file", "/gone"});
    EXPECT_EQ(window_.faults[folders], "4 faults");
}

TEST_F(RuleHealthTest, TheToolTipOfAPathIsTheWholePathBelowWhatIsWrong) {
    launchWith({"/Users/anna/a", "/Users/anna/gone", "Undefined"}, {"/Users/anna/a"});
    EXPECT_EQ(remark(folders, 0).toolTip, "/Users/anna/a");
    EXPECT_TRUE(remark(folders, 0).isPath);
    EXPECT_EQ(remark(folders, 1).toolTip, help(folders, 1) + "\n/Users/anna/gone");
    EXPECT_EQ(remark(folders, 2).toolTip, help(folders, 2));
    EXPECT_EQ(remark(folders, 7), CellRemark{});
}

TEST_F(RuleHealthTest, TheCellsOfARowWithAFaultStayAsTheyAre) {
    launchWith({"/gone"});
    const auto with = controller_.rows().cell(folders, "realPath", 0);
    const auto* field = std::get_if<TextFieldCell>(&with.control);
    ASSERT_NE(field, nullptr);
    EXPECT_EQ(field->text, "/gone");
    platform_.files.folders.insert("/gone");
    show(Page::commonPath);
    EXPECT_EQ(controller_.rows().cell(folders, "realPath", 0), with);
}

TEST_F(RuleHealthTest, TheNextFaultIsBelowTheSelectionAndThenFromTheTop) {
    launchWith({"/a", "/gone", "/a", "Undefined"}, {"/a"});
    auto& table = window_.table(folders);
    for (const long expected : {1L, 3L, 1L}) {
        controller_.warnings().showNextFault(folders);
        EXPECT_EQ(table.selected, expected);
    }
}

TEST_F(RuleHealthTest, WithoutAFaultTheSelectionStays) {
    launchWith({"/a"}, {"/a"});
    window_.table(folders).selected = 0;
    platform_.log.clear();
    controller_.warnings().showNextFault(folders);
    EXPECT_TRUE(platform_.log.lines().empty());
}

TEST_F(RuleHealthTest, ACommonFolderIsChosenAnewAsATargetIs) {
    launchWith({"/gone"});
    controller_.textEdited("commonPathDisplayName", 0, "Old name");
    platform_.files.folders.insert("/Volumes/Backup");
    controller_.selectPath(folders, 0);
    platform_.log.clear();
    platform_.panels.confirm({"/Volumes/Backup"});
    const PlistValue expected(
        PlistDictionary{{"enable", 1}, {"realPath", "/Volumes/Backup"}, {"displayName", ""}});
    EXPECT_EQ(localList(folders)[0], expected);
    EXPECT_EQ(sharedList(folders)[0], expected);
    EXPECT_EQ(platform_.log.lines().front(), "local set arrOfCommonPath");
    platform_.runLoop.runMain();
    EXPECT_EQ(window_.faults[folders], "");
}

} // namespace
} // namespace tarnwick::testing
