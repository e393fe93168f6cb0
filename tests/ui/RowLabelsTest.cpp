#include "tests/support/SettingsFixture.h"
#include "ui/RuleColumns.h"

#include <set>

namespace tarnwick::testing {
namespace {

class RowLabelsTest : public SettingsFixture {
protected:
    /// Of the first row, TXT, unless it is called otherwise.
    [[nodiscard]] std::string label(RuleCategory category, std::string_view column) {
        launch();
        return controller_.rows().label(category, column, 0);
    }
    void callTheFirst(const PlistValue& name) {
        storeList(RuleCategory::createNewFile, {makeRecord({{"displayName", name}, {"modified", "1"}})});
        platform_.files.createFolder("/container/Templates/CreateNewFile");
    }
    [[nodiscard]] std::vector<std::string> labels(RuleCategory category, std::string_view column) const {
        std::vector<std::string> found;
        for (long row = 0; row < controller_.rows().count(category); ++row) {
            found.push_back(controller_.rows().label(category, column, row));
        }
        return found;
    }
    using Labels = std::vector<std::string>;
};

TEST_F(RowLabelsTest, ASwitchSaysWhatItDoesToWhichRow) {
    EXPECT_EQ(label(RuleCategory::createNewFile, "Enable"), "Offer TXT in the menu");
    EXPECT_EQ(label(RuleCategory::others, "OthersEnable"), "Offer Cut in the menu");
    EXPECT_EQ(label(RuleCategory::createNewFile, "EnableMainMenu"), "Offer TXT in the main menu");
}

TEST_F(RowLabelsTest, AFieldSaysWhatItHoldsOfWhichRow) {
    EXPECT_EQ(label(RuleCategory::createNewFile, "NewFileDisplayName"), "Name of TXT");
    EXPECT_EQ(label(RuleCategory::createNewFile, "Extension"), "Extension of TXT");
    EXPECT_EQ(label(RuleCategory::customIcon, "Size"), "Size of App");
    EXPECT_EQ(label(RuleCategory::others, "OthersNote"), "Note of Cut");
}

TEST_F(RowLabelsTest, ARowWithoutANameGoesByItsNumber) {
    callTheFirst("");
    EXPECT_EQ(label(RuleCategory::createNewFile, "Enable"), "Offer row 1 in the menu");
}

TEST_F(RowLabelsTest, AnUnknownColumnAndARowThatIsNotThereSayNothing) {
    EXPECT_EQ(label(RuleCategory::createNewFile, "Anything"), "");
    EXPECT_EQ(controller_.rows().label(RuleCategory::commonPath, "realPath", 7), "");
}

TEST_F(RowLabelsTest, ALabelIsTranslatedAndANameOfTheUsersIsNot) {
    callTheFirst("Word");
    platform_.bundle.texts = {{"Name of %@", "%@, Name"}, {"Word", "Wort"}};
    EXPECT_EQ(label(RuleCategory::createNewFile, "NewFileDisplayName"), "Word, Name");
}

TEST_F(RowLabelsTest, ANameWithAPlaceholderStaysAsItIs) {
    callTheFirst("%@ %d");
    EXPECT_EQ(label(RuleCategory::createNewFile, "Enable"), "Offer %@ %d in the menu");
}

TEST_F(RowLabelsTest, EveryColumnOfARowHasALabelOfItsOwnThatNamesTheRow) {
    storeList(RuleCategory::copyFilesTo, {makeRecord({{"realPath", "/a/Pictures"}})});
    storeList(RuleCategory::commonPath, {makeRecord({{"realPath", "/a/Pictures"}})});
    launch();
    for (const auto category : allRuleCategories) {
        std::set<std::string> labels;
        for (const auto& column : columnsOf(category)) {
            const auto* nameColumn = columnOf(category, ColumnRole::name);
            const auto cell = controller_.rows().cell(category, nameColumn->identifier, 0);
            const auto found = controller_.rows().label(category, column.identifier, 0);
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
    controller_.textEdited("commonPathDisplayName", 1, "src");
    EXPECT_EQ(labels(RuleCategory::commonPath, "realPath"),
        (Labels{"Folder of src (row 1)", "Folder of src (row 2)"}));
    window_.table(RuleCategory::commonPath).selected = 0;
    controller_.remove(RuleCategory::commonPath);
    EXPECT_EQ(labels(RuleCategory::commonPath, "realPath"), Labels{"Folder of src"});
}

TEST_F(RowLabelsTest, TheSameNameInAnotherTableIsNoRepetition) {
    storeList(RuleCategory::copyFilesTo, {makeRecord({{"realPath", "/a/src"}})});
    storeList(RuleCategory::commonPath, {makeRecord({{"realPath", "/a/src"}})});
    launch();
    EXPECT_EQ(labels(RuleCategory::copyFilesTo, "Enable"), Labels{"Offer src in the menu"});
}

} // namespace
} // namespace tarnwick::testing
