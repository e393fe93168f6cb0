#include "tests/editing/LetterLists.h"

#include <algorithm>

namespace tarnwick::testing {
namespace {

/// A name of the second row is being edited, and something else happens before Return is pressed.
class OpenEditTest : public LetterListTest {
protected:
    void SetUp() override {
        for (const auto category : allRuleCategories) {
            storeLetters(category, "ABCD");
        }
        platform_.files.createFolder("/container/Templates/CreateNewFile");
        launch();
        for (const auto category : allRuleCategories) {
            tables_.table(category).selected = 1;
        }
    }

    /// From now on the field of the second row holds "New".
    void type(std::string_view identifier) {
        tables_.openEdit = [this, identifier] { editing_.textEditing.endEditing(identifier, 1, "New"); };
    }
    [[nodiscard]] std::vector<std::string> names(RuleCategory category) const {
        return texts(localList(category), "displayName");
    }
    [[nodiscard]] std::vector<std::string> publishedNames(RuleCategory category) const {
        return texts(sharedList(category), "displayName");
    }
    void expectNames(RuleCategory category, const std::vector<std::string>& expected) const {
        EXPECT_EQ(names(category), expected);
        EXPECT_EQ(publishedNames(category), expected);
    }
    /// Nothing was asked of the platform ahead of the edit's end, and the edit published before the rest.
    void expectTheEditCameFirst(const std::string& list) const {
        const auto& lines = platform_.log.lines();
        ASSERT_FALSE(lines.empty());
        EXPECT_EQ(lines.front(), "end edit");
        const auto stores = std::count(lines.begin(), lines.end(), "local set " + list);
        const auto publications = std::count(lines.begin(), lines.end(), "shared set " + list);
        EXPECT_EQ(stores, publications);
        EXPECT_EQ(stores, 2);
    }
};

TEST_F(OpenEditTest, RemovingTakesTheEditedRowAndLeavesTheNextOneItsName) {
    type("CustomIconName");
    editing_.removing.remove(RuleCategory::customIcon);
    expectNames(RuleCategory::customIcon, {"A", "C", "D"});
    EXPECT_EQ(texts(localList(RuleCategory::customIcon), "modified"), std::vector<std::string>(3, "-"));
    expectTheEditCameFirst("arrOfCustomIcon");
}

TEST_F(OpenEditTest, RemovingATemplateRemovesTheFileUnderItsNewName) {
    const std::string folder = "/container/Templates/CreateNewFile/";
    platform_.files.files[folder + "B."] = "b";
    platform_.files.files[folder + "C."] = "c";
    type("NewFileDisplayName");
    editing_.removing.remove(RuleCategory::createNewFile);
    expectNames(RuleCategory::createNewFile, {"A", "C", "D"});
    EXPECT_FALSE(platform_.files.exists(folder + "B."));
    EXPECT_FALSE(platform_.files.exists(folder + "New."));
    EXPECT_TRUE(platform_.files.exists(folder + "C."));
}

TEST_F(OpenEditTest, TheListThatAResetMakesDoesNotHoldTheTypedName) {
    type("OthersDisplayName");
    editing_.resetting.reset(RuleCategory::others);
    const auto stored = names(RuleCategory::others);
    EXPECT_EQ(stored.size(), 18U);
    EXPECT_EQ(std::count(stored.begin(), stored.end(), "New"), 0);
    expectTheEditCameFirst("arrOfOthers");
}

TEST_F(OpenEditTest, MovingTheSelectedRowTakesItsNewNameAlong) {
    type("commonPathDisplayName");
    editing_.reordering.moveSelection(RuleCategory::commonPath, MoveDirection::down);
    expectNames(RuleCategory::commonPath, {"A", "C", "New", "D"});
}

TEST_F(OpenEditTest, ADroppedRowLandsAfterTheNameIsStored) {
    type("commonPathDisplayName");
    editing_.reordering.acceptDrop(RuleCategory::commonPath, RuleCategory::commonPath, 3, 0);
    expectNames(RuleCategory::commonPath, {"D", "A", "New", "C"});
    expectTheEditCameFirst("arrOfCommonPath");
}

TEST_F(OpenEditTest, SwitchingAnotherRowStoresTheNameFirst) {
    type("CustomIconName");
    editing_.toggling.set(RuleCategory::customIcon, 0, field::enable, false);
    EXPECT_EQ(names(RuleCategory::customIcon), (std::vector<std::string>{"A", "New", "C", "D"}));
    EXPECT_EQ(publishedNames(RuleCategory::customIcon), (std::vector<std::string>{"New", "C", "D"}));
    expectTheEditCameFirst("arrOfCustomIcon");
}

TEST_F(OpenEditTest, SwitchingAllKeepsWhatTheSwitchHasStored) {
    type("CustomIconName");
    platform_.preferences.local.insert_or_assign("enableAllOfCustomIcon", false);
    editing_.toggling.enableAll(RuleCategory::customIcon);
    EXPECT_EQ(names(RuleCategory::customIcon), (std::vector<std::string>{"A", "New", "C", "D"}));
    EXPECT_TRUE(publishedNames(RuleCategory::customIcon).empty());
    expectTheEditCameFirst("arrOfCustomIcon");
}

TEST_F(OpenEditTest, AnAddThatIsCancelledStoresTheNameAlone) {
    type("commonPathDisplayName");
    editing_.adding.add(RuleCategory::commonPath);
    platform_.panels.cancel();
    expectNames(RuleCategory::commonPath, {"A", "New", "C", "D"});
}

TEST_F(OpenEditTest, ANameTypedWhileTheChooserIsOpenIsStoredBeforeWhatIsChosen) {
    editing_.adding.add(RuleCategory::commonPath);
    platform_.log.clear();
    type("commonPathDisplayName");
    platform_.panels.confirm({"/folders/E"});
    expectNames(RuleCategory::commonPath, {"A", "New", "C", "D", "E"});
    expectTheEditCameFirst("arrOfCommonPath");
}

TEST_F(OpenEditTest, ACancelledChooserLeavesTheEditOpen) {
    editing_.adding.add(RuleCategory::commonPath);
    type("commonPathDisplayName");
    platform_.panels.cancel();
    EXPECT_TRUE(tables_.openEdit);
    EXPECT_EQ(names(RuleCategory::commonPath), (std::vector<std::string>{"A", "B", "C", "D"}));
}

TEST_F(OpenEditTest, AFolderChosenForTheEditedRowClearsItsTypedName) {
    type("Note");
    editing_.pathChoosing.selectPath(RuleCategory::copyFilesTo, 1);
    EXPECT_EQ(names(RuleCategory::copyFilesTo), (std::vector<std::string>{"A", "New", "C", "D"}));
    type("Note");
    platform_.panels.confirm({"/folders/E"});
    expectNames(RuleCategory::copyFilesTo, {"A", "", "C", "D"});
    EXPECT_EQ(texts(localList(RuleCategory::copyFilesTo), "realPath")[1], "/folders/E");
}

TEST_F(OpenEditTest, DroppedFoldersAreAddedAfterTheNameIsStored) {
    type("commonPathDisplayName");
    EXPECT_TRUE(editing_.adding.addDropped(RuleCategory::commonPath, {{"/folders/E", true}}));
    expectNames(RuleCategory::commonPath, {"A", "New", "C", "D", "E"});
    expectTheEditCameFirst("arrOfCommonPath");
}

TEST_F(OpenEditTest, ADropThatTakesNothingLeavesTheEditOpen) {
    type("commonPathDisplayName");
    EXPECT_FALSE(editing_.adding.addDropped(RuleCategory::commonPath, {{"/folders/E.txt", false}}));
    EXPECT_TRUE(tables_.openEdit);
}

TEST_F(OpenEditTest, AnEditThatIsEndedMarksItsRecordAlsoWithTheSameText) {
    tables_.openEdit = [this] { editing_.textEditing.endEditing("OthersDisplayName", 1, "B"); };
    editing_.editor.endEditing();
    EXPECT_EQ(texts(localList(RuleCategory::others), "nameModified")[1], "1");
    EXPECT_FALSE(tables_.openEdit);
}

TEST_F(OpenEditTest, WithoutAnEditNothingIsEnded) {
    editing_.removing.remove(RuleCategory::others);
    EXPECT_EQ(platform_.log.linesWith("end edit").size(), 0U);
}

} // namespace
} // namespace tarnwick::testing
