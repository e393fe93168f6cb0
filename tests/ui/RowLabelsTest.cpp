#include "ui/RowLabels.h"
#include "tests/support/SettingsFixture.h"
#include "ui/WindowLayout.h"

#include <set>

namespace tarnwick::testing {
namespace {

class RowLabelsTest : public SettingsFixture {
protected:
    [[nodiscard]] std::string label(
        std::string_view column, std::string_view name = "TXT", long row = 0) const {
        return rowControlLabel(platform_.bundle, column, name, row, false);
    }
    [[nodiscard]] std::vector<std::string> labels(RuleCategory category, std::string_view column) const {
        std::vector<std::string> found;
        for (long row = 0; row < controller_.numberOfRows(category); ++row) {
            found.push_back(controller_.accessibilityLabel(category, column, row));
        }
        return found;
    }
    using Labels = std::vector<std::string>;
};

TEST_F(RowLabelsTest, ASwitchSaysWhatItDoesToWhichRow) {
    EXPECT_EQ(label("Enable"), "Offer TXT in the menu");
    EXPECT_EQ(label("OthersEnable"), "Offer TXT in the menu");
    EXPECT_EQ(label("EnableMainMenu"), "Offer TXT in the main menu");
}

TEST_F(RowLabelsTest, AFieldSaysWhatItHoldsOfWhichRow) {
    EXPECT_EQ(label("NewFileDisplayName"), "Name of TXT");
    EXPECT_EQ(label("Extension"), "Extension of TXT");
    EXPECT_EQ(label("realPath"), "Folder of TXT");
    EXPECT_EQ(label("Size"), "Size of TXT");
    EXPECT_EQ(label("OthersNote"), "Note of TXT");
}

TEST_F(RowLabelsTest, ARowWithoutANameGoesByItsNumber) {
    EXPECT_EQ(label("Enable", "", 2), "Offer row 3 in the menu");
}

TEST_F(RowLabelsTest, AnUnknownColumnSaysNothing) {
    EXPECT_EQ(label("Anything"), "");
}

TEST_F(RowLabelsTest, ALabelIsTranslatedAndANameIsNot) {
    platform_.bundle.texts = {{"Name of %@", "%@, Name"}, {"TXT", "Text"}};
    EXPECT_EQ(label("NewFileDisplayName"), "TXT, Name");
}

TEST_F(RowLabelsTest, ANameWithAPlaceholderStaysAsItIs) {
    EXPECT_EQ(label("Enable", "%@ %d"), "Offer %@ %d in the menu");
}

TEST_F(RowLabelsTest, EveryColumnOfARowHasALabelOfItsOwnThatNamesTheRow) {
    storeList(RuleCategory::copyFilesTo, {makeRecord({{"realPath", "/a/Pictures"}})});
    storeList(RuleCategory::commonPath, {makeRecord({{"realPath", "/a/Pictures"}})});
    launch();
    for (const auto& page : pageLayouts()) {
        std::set<std::string> labels;
        for (const auto& column : page.columns) {
            const auto cell = controller_.viewForTableColumn(*page.category, page.nameColumn, 0);
            const auto found = controller_.accessibilityLabel(*page.category, column.identifier, 0);
            EXPECT_NE(found.find(std::get_if<TextFieldCell>(&cell.control)->text), std::string::npos)
                << found;
            EXPECT_TRUE(labels.insert(found).second) << found;
        }
    }
}

TEST_F(RowLabelsTest, RowsOfTheSameNameGoByTheirNumbersToo) {
    platform_.bundle.texts = {{"row %@", "line %@"}};
    storeList(
        RuleCategory::commonPath, {makeRecord({{"realPath", "/a/src"}}), makeRecord({{"realPath", "/a/doc"}}),
                                      makeRecord({{"realPath", "/b"}, {"displayName", "src"}})});
    launch();
    EXPECT_EQ(labels(RuleCategory::commonPath, "realPath"),
        (Labels{"Folder of src (line 1)", "Folder of doc", "Folder of src (line 3)"}));
}

TEST_F(RowLabelsTest, TheNumbersComeAndGoWithTheSecondRowOfAName) {
    storeList(RuleCategory::commonPath,
        {makeRecord({{"realPath", "/a/src"}}), makeRecord({{"realPath", "/a/doc"}})});
    launch();
    EXPECT_EQ(labels(RuleCategory::commonPath, "realPath"), (Labels{"Folder of src", "Folder of doc"}));
    controller_.controlTextShouldEndEditing("commonPathDisplayName", 1, "src");
    EXPECT_EQ(labels(RuleCategory::commonPath, "realPath"),
        (Labels{"Folder of src (row 1)", "Folder of src (row 2)"}));
    window_.table(RuleCategory::commonPath).selected = 0;
    controller_.removeCommondPathRule();
    EXPECT_EQ(labels(RuleCategory::commonPath, "realPath"), Labels{"Folder of src"});
}

TEST_F(RowLabelsTest, TheSameNameInAnotherTableIsNoRepetition) {
    storeList(RuleCategory::copyFilesTo, {makeRecord({{"realPath", "/a/src"}})});
    storeList(RuleCategory::commonPath, {makeRecord({{"realPath", "/a/src"}})});
    launch();
    EXPECT_EQ(labels(RuleCategory::copyFilesTo, "Enable"), Labels{"Offer src in the menu"});
}

TEST_F(RowLabelsTest, ARowThatIsNotThereHasNoNameButALabel) {
    launch();
    EXPECT_EQ(controller_.accessibilityLabel(RuleCategory::commonPath, "realPath", 7), "Folder of row 8");
}

} // namespace
} // namespace tarnwick::testing
