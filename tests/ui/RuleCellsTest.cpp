#include "tests/support/Categories.h"
#include "tests/support/SettingsFixture.h"

namespace tarnwick::testing {
namespace {

class RuleCellsTest : public SettingsFixture {
protected:
    void SetUp() override {
        storeList(RuleCategory::copyFilesTo,
            {folder("/Users/anna/Downloads", ""), folder("Undefined", ""), folder("/Volumes/Backup", ""),
                folder("/a/Users/anna/b/Users/anna", "Named"), folder("/Users/anna/Desktop", "")});
        storeList(
            RuleCategory::commonPath, {folder("/Users/anna/Music", ""), folder("/Users/annabel/x", "")});
        platform_.images.pictureFiles["/container/Templates/CreateNewFile/txt.png"] = "tiff of txt";
        platform_.bundle.texts = {{"Downloads", "Herunterladen"}, {"Undefined", "Unbestimmt"},
            {"TXT", "Text"}, {"Cut", "Ausschneiden"}, {"Initially just hide", "Nur versteckt"},
            {"Apple", "Apfel"}};
        launch();
    }
    static RuleRecord folder(const char* path, const char* name) {
        return makeRecord({{"enable", 1}, {"realPath", path}, {"displayName", name}});
    }
    [[nodiscard]] CellView cell(RuleCategory table, std::string_view column, long row) const {
        return controller_.rows().cell(table, column, row);
    }
    [[nodiscard]] TextFieldCell field(RuleCategory table, std::string_view column, long row) const {
        const auto view = cell(table, column, row);
        const auto* found = std::get_if<TextFieldCell>(&view.control);
        return found ? *found : TextFieldCell{.text = "(no text field)"};
    }
    [[nodiscard]] CheckBoxCell box(RuleCategory table, std::string_view column, long row) const {
        const auto view = cell(table, column, row);
        const auto* found = std::get_if<CheckBoxCell>(&view.control);
        EXPECT_NE(found, nullptr);
        return found ? *found : CheckBoxCell{};
    }
    [[nodiscard]] std::string image(RuleCategory table, std::string_view column, long row) const {
        const auto view = cell(table, column, row);
        const auto* found = std::get_if<ImageCell>(&view.control);
        return found ? textOf(found->image) : "(no image view)";
    }
};

struct LayoutCase {
    RuleCategory table;
    const char* column;
    std::optional<Frame> frame;
    bool tagged;
    bool bare;
};

void PrintTo(const LayoutCase& cell, std::ostream* stream) {
    tarnwick::PrintTo(cell.table, stream);
    *stream << " " << cell.column;
}

class CellLayoutTest : public RuleCellsTest, public ::testing::WithParamInterface<LayoutCase> {};

TEST_P(CellLayoutTest, HasItsFrameAndCarriesItsRow) {
    const auto view = cell(GetParam().table, GetParam().column, 1);
    EXPECT_EQ(view.frame, GetParam().frame);
    EXPECT_EQ(view.tag, GetParam().tagged ? std::optional<long>(1) : std::nullopt);
    EXPECT_EQ(view.bare, GetParam().bare);
}

INSTANTIATE_TEST_SUITE_P(Every, CellLayoutTest,
    ::testing::Values(LayoutCase{templates, "Extension", Frame{0, 0, 300, 23}, true, false},
        LayoutCase{templates, "NewFileDisplayName", Frame{0, 0, 500, 23}, true, false},
        LayoutCase{templates, "Enable", Frame{6, 5, 20, 20}, true, false},
        LayoutCase{templates, "NewFileIcon", Frame{8, 1, 28, 28}, false, false},
        LayoutCase{templates, "EnableMainMenu", Frame{35, 5, 20, 20}, true, false},
        LayoutCase{targets, "Note", Frame{0, 0, 300, 23}, true, false},
        LayoutCase{targets, "realPath", Frame{0, 0, 500, 23}, false, false},
        LayoutCase{targets, "Enable", std::nullopt, true, true},
        LayoutCase{targets, "SendFileIcon", Frame{5, 1, 28, 28}, false, false},
        LayoutCase{folders, "commonPathDisplayName", Frame{0, 0, 300, 23}, true, false},
        LayoutCase{folders, "realPath", Frame{0, 0, 500, 23}, false, false},
        LayoutCase{folders, "commonPathIcon", Frame{5, 1, 28, 28}, false, false},
        LayoutCase{icons, "CustomIconName", Frame{0, 0, 300, 23}, true, false},
        LayoutCase{icons, "Icon", Frame{8, 1, 28, 28}, false, false},
        LayoutCase{icons, "Enable", Frame{6, 5, 20, 20}, true, false},
        LayoutCase{icons, "Size", Frame{0, 0, 100, 23}, false, false},
        LayoutCase{others, "OthersDisplayName", Frame{0, 0, 300, 23}, true, false},
        LayoutCase{others, "OthersIcon", Frame{20, 5, 20, 20}, false, false},
        LayoutCase{others, "OthersEnable", Frame{6, 5, 20, 20}, true, false},
        LayoutCase{others, "OthersNote", Frame{0, 0, 300, 23}, true, false}));

struct NameCase {
    RuleCategory table;
    const char* column;
};

void PrintTo(const NameCase& field, std::ostream* stream) {
    tarnwick::PrintTo(field.table, stream);
    *stream << " " << field.column;
}

class NameFieldTest : public RuleCellsTest, public ::testing::WithParamInterface<NameCase> {};

TEST_P(NameFieldTest, IsEditableReportsToTheControllerAndIsIdentifiedByItsColumn) {
    const auto name = field(GetParam().table, GetParam().column, 0);
    EXPECT_TRUE(name.editable);
    EXPECT_TRUE(name.hasDelegate);
    EXPECT_EQ(name.identifier, GetParam().column);
}

INSTANTIATE_TEST_SUITE_P(Every, NameFieldTest,
    ::testing::Values(NameCase{templates, "NewFileDisplayName"}, NameCase{targets, "Note"},
        NameCase{folders, "commonPathDisplayName"}, NameCase{icons, "CustomIconName"},
        NameCase{others, "OthersDisplayName"}, NameCase{others, "OthersNote"}));

TEST_F(RuleCellsTest, TheExtensionIsShownAsItIsWithoutDelegateOrIdentifier) {
    EXPECT_EQ(field(templates, "Extension", 3), TextFieldCell{.text = "docx"});
}

TEST_F(RuleCellsTest, ANameIsLocalisedUntilTheUserChangesIt) {
    EXPECT_EQ(field(templates, "NewFileDisplayName", 0).text, "Text");
    controller_.textEdited("NewFileDisplayName", 0, "TXT");
    EXPECT_EQ(field(templates, "NewFileDisplayName", 0).text, "TXT");
    EXPECT_EQ(field(icons, "CustomIconName", 1).text, "Apfel");
    EXPECT_EQ(field(others, "OthersDisplayName", 0).text, "Ausschneiden");
    controller_.textEdited("OthersDisplayName", 0, "Cut");
    EXPECT_EQ(field(others, "OthersDisplayName", 0).text, "Cut");
}

TEST_F(RuleCellsTest, ANoteIsLocalisedAndOnceEditedTheCellShowsTheName) {
    EXPECT_EQ(field(others, "OthersNote", 0).text, "Nur versteckt");
    EXPECT_EQ(field(others, "OthersNote", 2).text, "");
    controller_.textEdited("OthersNote", 2, "Mine");
    EXPECT_EQ(field(others, "OthersNote", 2).text, "Copy Path");
}

TEST_F(RuleCellsTest, CheckBoxesShowTheirFieldAndTurnIt) {
    EXPECT_TRUE(box(templates, "Enable", 0).on);
    EXPECT_FALSE(box(templates, "Enable", 14).on);
    EXPECT_FALSE(box(templates, "EnableMainMenu", 0).on);
    EXPECT_EQ(box(templates, "EnableMainMenu", 0).field, field::enableMainMenu);
    for (const auto& [category, column] : {std::pair{templates, "Enable"}, std::pair{targets, "Enable"},
             std::pair{icons, "Enable"}, std::pair{others, "OthersEnable"}}) {
        EXPECT_EQ(box(category, column, 0).field, field::enable);
    }
}

TEST_F(RuleCellsTest, AFixedActionIsOnLockedAndNotEditable) {
    platform_.preferences.userSets("enableAllOfOthers", false);
    controller_.enableAll(RuleCategory::others);
    for (const long row : {15L, 16L, 17L}) {
        EXPECT_TRUE(box(others, "OthersEnable", row).on);
        EXPECT_FALSE(box(others, "OthersEnable", row).enabled);
        EXPECT_FALSE(field(others, "OthersDisplayName", row).editable);
        EXPECT_FALSE(field(others, "OthersNote", row).editable);
    }
    EXPECT_FALSE(box(others, "OthersEnable", 9).on);
    EXPECT_TRUE(box(others, "OthersEnable", 9).enabled);
    EXPECT_TRUE(field(others, "OthersDisplayName", 9).editable);
}

TEST_F(RuleCellsTest, AFolderWithoutNameShowsTheLocalisedOrItsOwnName) {
    EXPECT_EQ(field(targets, "Note", 0).text, "Herunterladen");
    EXPECT_EQ(field(targets, "Note", 1).text, "Unbestimmt");
    EXPECT_EQ(field(targets, "Note", 2).text, "Backup");
    EXPECT_EQ(field(targets, "Note", 3).text, "Named");
    EXPECT_EQ(field(targets, "Note", 4).text, "Desktop");
    EXPECT_EQ(field(folders, "commonPathDisplayName", 0).text, "Music");
}

TEST_F(RuleCellsTest, EveryOccurrenceOfTheHomeInAPathIsShortened) {
    EXPECT_EQ(field(targets, "realPath", 0).text, "~/Downloads");
    EXPECT_EQ(field(targets, "realPath", 3).text, "/a~/b~");
    EXPECT_EQ(field(folders, "realPath", 1).text, "~bel/x");
    EXPECT_FALSE(field(targets, "realPath", 0).editable);
}

TEST_F(RuleCellsTest, ATemplateShowsItsIconFileElseTheSystemsIconOfItsFile) {
    EXPECT_EQ(image(templates, "NewFileIcon", 0), "tiff of txt");
    EXPECT_EQ(image(templates, "NewFileIcon", 1), "icon of /container/Templates/CreateNewFile/RTF.rtf");
    platform_.folders.container.reset();
    EXPECT_EQ(image(templates, "NewFileIcon", 0), "");
}

TEST_F(RuleCellsTest, FoldersShowTheSystemsIcon) {
    EXPECT_EQ(image(targets, "SendFileIcon", 2), "icon of /Volumes/Backup");
    EXPECT_EQ(image(folders, "commonPathIcon", 0), "icon of /Users/anna/Music");
}

TEST_F(RuleCellsTest, RecordImagesAreMadeFromTheirData) {
    EXPECT_EQ(image(icons, "Icon", 1), "tiff of Apple");
    EXPECT_EQ(image(others, "OthersIcon", 6), "tiff of VSCode");
}

TEST_F(RuleCellsTest, TheSizeIsWidthByHeightWithoutDecimalsCentred) {
    platform_.images.size = {512, 384.4};
    EXPECT_EQ(
        field(icons, "Size", 0), (TextFieldCell{.text = "512 x 384", .alignment = TextAlignment::centred}));
}

TEST_F(RuleCellsTest, MissingFieldsShowAsEmptyTextOffAndNoImage) {
    storeList(icons, {makeRecord({{"modified", "1"}})});
    launch();
    EXPECT_EQ(field(icons, "CustomIconName", 0).text, "");
    EXPECT_EQ(field(icons, "Size", 0).text, "");
    EXPECT_EQ(image(icons, "Icon", 0), "");
    EXPECT_FALSE(box(icons, "Enable", 0).on);
}

TEST_F(RuleCellsTest, WithoutANameOrAPathThereIsNoFileToShowTheIconOf) {
    for (const auto category : {templates, targets, folders}) {
        storeList(category, {makeRecord({{"modified", "1"}})});
    }
    launch();
    EXPECT_EQ(image(templates, "NewFileIcon", 0), "");
    EXPECT_EQ(image(targets, "SendFileIcon", 0), "");
    EXPECT_EQ(image(folders, "commonPathIcon", 0), "");
}

TEST_F(RuleCellsTest, AnUnknownColumnAndARowOutsideTheListGiveAnEmptyCell) {
    for (const auto category : allRuleCategories) {
        EXPECT_EQ(cell(category, "Size of nothing", 0), CellView{});
        EXPECT_EQ(cell(category, "Enable", 1000), CellView{});
        EXPECT_EQ(cell(category, "Enable", -1), CellView{});
    }
}

TEST_F(RuleCellsTest, EveryRowIsThirtyPointsHigh) {
    EXPECT_EQ(rowHeight, 30.0);
}

} // namespace
} // namespace tarnwick::testing
