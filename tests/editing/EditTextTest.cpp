#include "tests/support/EditingFixture.h"

namespace tarnwick::testing {
namespace {

class EditTextTest : public EditingFixture {
protected:
    void SetUp() override {
        storeList(RuleCategory::copyFilesTo,
            {makeRecord({{"enable", 1}, {"realPath", "/a/Zoo"}, {"displayName", "Zoo"}})});
        storeList(RuleCategory::commonPath,
            {makeRecord({{"enable", 1}, {"realPath", "/a/Mill"}, {"displayName", "Mill"}})});
        launch();
    }
    void edit(std::string_view identifier, long row, std::string_view text) {
        editing_.textEditing.endEditing(identifier, row, text);
    }
    [[nodiscard]] const PlistDictionary& record(RuleCategory category, std::size_t row) const {
        return *localList(category)[row].dictionary();
    }
    [[nodiscard]] bool hasTemplate(const std::string& name) const {
        return platform_.files.exists("/container/Templates/CreateNewFile/" + name);
    }
};

struct FieldCase {
    std::string_view identifier;
    RuleCategory category;
    std::vector<std::string> changedFields;
};

void PrintTo(const FieldCase& field, std::ostream* stream) {
    *stream << field.identifier;
}

class EditFieldTest : public EditTextTest, public ::testing::WithParamInterface<FieldCase> {};

TEST_P(EditFieldTest, WritesItsTextAndItsMarkAndLeavesTheRest) {
    const auto& facts = GetParam();
    auto expected = record(facts.category, 0);
    for (const auto& field : facts.changedFields) {
        expected.insert_or_assign(field, field.ends_with("odified") ? "1" : "New");
    }
    edit(facts.identifier, 0, "New");
    EXPECT_EQ(record(facts.category, 0), expected);
    EXPECT_EQ(*sharedList(facts.category)[0].dictionary(), expected);
}

INSTANTIATE_TEST_SUITE_P(Every, EditFieldTest,
    ::testing::Values(
        FieldCase{"NewFileDisplayName", RuleCategory::createNewFile, {"modified", "displayName"}},
        FieldCase{"newFileName", RuleCategory::copyFilesTo, {"displayName"}},
        FieldCase{"Note", RuleCategory::copyFilesTo, {"displayName"}},
        FieldCase{"commonPathDisplayName", RuleCategory::commonPath, {"displayName"}},
        FieldCase{"CustomIconName", RuleCategory::customIcon, {"modified", "displayName"}},
        FieldCase{"OthersDisplayName", RuleCategory::others, {"nameModified", "displayName"}},
        FieldCase{"OthersNote", RuleCategory::others, {"noteModified", "Note"}}));

TEST_F(EditTextTest, AnyOtherIdentifierIsAcceptedAndNothingIsStored) {
    for (const auto* identifier : {"Extension", "", "note", "newfilename", "realPath"}) {
        edit(identifier, 0, "New");
    }
    EXPECT_TRUE(platform_.log.lines().empty());
}

TEST_F(EditTextTest, ARowThatTheListDoesNotHaveChangesNothing) {
    edit("Note", 1, "New");
    edit("Note", -1, "New");
    EXPECT_TRUE(platform_.log.lines().empty());
}

TEST_F(EditTextTest, RenamingATemplateMovesItsFileLastOfAll) {
    const std::string folder = "/container/Templates/CreateNewFile/";
    edit("NewFileDisplayName", 0, "Memo");
    const auto& lines = platform_.log.lines();
    ASSERT_GE(lines.size(), 2U);
    EXPECT_EQ(lines[lines.size() - 2], "move " + folder + "TXT.txt -> " + folder + "Memo.txt");
    EXPECT_EQ(lines.back(), "local remove pendingTemplateFiles");
    EXPECT_EQ(platform_.log.linesWith("move ").size(), 1U);
    EXPECT_TRUE(hasTemplate("Memo.txt"));
    EXPECT_FALSE(hasTemplate("TXT.txt"));
}

TEST_F(EditTextTest, OtherCategoriesMoveNoFile) {
    edit("Note", 0, "New");
    EXPECT_EQ(
        platform_.log.lines(), (std::vector<std::string>{"local set arrOfCopyFilesTo", "local synchronise",
                                   "reload copyFilesTo", "shared open H7Q2ZK5RX9.org.halvane.Tarnwick",
                                   "shared set arrOfCopyFilesTo", "shared synchronise"}));
}

TEST_F(EditTextTest, ARenameWhoseFileNameIsTakenKeepsTheNewNameAndOverwritesNothing) {
    platform_.files.files["/container/Templates/CreateNewFile/Memo.txt"] = "mine";
    edit("NewFileDisplayName", 0, "Memo");
    EXPECT_EQ(record(RuleCategory::createNewFile, 0).at("displayName"), PlistValue("Memo"));
    EXPECT_EQ(platform_.files.files["/container/Templates/CreateNewFile/Memo.txt"], "mine");
    EXPECT_TRUE(hasTemplate("TXT.txt"));
}

TEST_F(EditTextTest, TheSameTextStillMarksStoresAndPublishes) {
    edit("NewFileDisplayName", 0, "TXT");
    EXPECT_EQ(record(RuleCategory::createNewFile, 0).at("modified"), PlistValue("1"));
    EXPECT_TRUE(platform_.log.holds("shared set arrOfCreateNewFile"));
    EXPECT_TRUE(hasTemplate("TXT.txt"));
}

TEST_F(EditTextTest, AnEmptyTextIsStored) {
    edit("Note", 0, "");
    EXPECT_EQ(record(RuleCategory::copyFilesTo, 0).at("displayName"), PlistValue(""));
}

TEST_F(EditTextTest, ATextWithASlashIsStoredAsItIsButMovesNoFileOutOfTheFolder) {
    edit("NewFileDisplayName", 0, "../../escaped");
    EXPECT_EQ(record(RuleCategory::createNewFile, 0).at("displayName"), PlistValue("../../escaped"));
    EXPECT_TRUE(hasTemplate("TXT.txt"));
    EXPECT_TRUE(platform_.log.linesWith("move ").empty());
}

TEST_F(EditTextTest, ARecordWhoseOldNameHasASlashMovesNoFileOfAnotherFolder) {
    platform_.files.files["/container/Templates/precious.txt"] = "keep";
    edit("NewFileDisplayName", 0, "../precious");
    edit("NewFileDisplayName", 0, "Taken");
    EXPECT_EQ(record(RuleCategory::createNewFile, 0).at("displayName"), PlistValue("Taken"));
    EXPECT_TRUE(platform_.files.exists("/container/Templates/precious.txt"));
    EXPECT_FALSE(hasTemplate("Taken.txt"));
}

TEST_F(EditTextTest, ANameThatMakesADotNameWithAnEmptyExtensionMovesNoFolder) {
    platform_.files.files["/home/Makefile"] = "all:";
    editing_.adding.add(RuleCategory::createNewFile);
    platform_.panels.confirm({"/home/Makefile"});
    for (const auto* text : {".", "", "Plain"}) {
        edit("NewFileDisplayName", 15, text);
        EXPECT_EQ(record(RuleCategory::createNewFile, 15).at("displayName"), PlistValue(text));
    }
    EXPECT_TRUE(platform_.log.linesWith("move ").empty());
    EXPECT_TRUE(hasTemplate("Makefile"));
}

TEST_F(EditTextTest, ATemplateWhoseFileIsMissingKeepsItsNewName) {
    platform_.files.files.erase("/container/Templates/CreateNewFile/TXT.txt");
    edit("NewFileDisplayName", 0, "Memo");
    EXPECT_EQ(record(RuleCategory::createNewFile, 0).at("displayName"), PlistValue("Memo"));
    EXPECT_FALSE(hasTemplate("Memo.txt"));
}

TEST_F(EditTextTest, EditingANoteLeavesTheNamesMarkAlone) {
    edit("OthersNote", 3, "Careful");
    EXPECT_EQ(record(RuleCategory::others, 3).at("noteModified"), PlistValue("1"));
    EXPECT_EQ(record(RuleCategory::others, 3).at("nameModified"), PlistValue("0"));
}

TEST_F(EditTextTest, ARenamedItemKeepsItsAction) {
    edit("OthersDisplayName", 16, "Übersetzen");
    EXPECT_EQ(record(RuleCategory::others, 16).at("Action"), PlistValue("Translate by Google"));
    EXPECT_EQ(record(RuleCategory::others, 16).at("displayName"), PlistValue("Übersetzen"));
}

TEST_F(EditTextTest, WithoutAGroupContainerTheNameIsStillStored) {
    platform_.folders.container.reset();
    edit("NewFileDisplayName", 0, "Memo");
    EXPECT_EQ(record(RuleCategory::createNewFile, 0).at("displayName"), PlistValue("Memo"));
}

} // namespace
} // namespace tarnwick::testing
