#include "StandInTest.h"

#include "LoginItemsProbe.h"

namespace tarnwick::standins {
namespace {

class LoginItemsTest : public StandInTest {
protected:
    static bool isLoginItem() {
        bool result = false;
        inPool([&result] { result = isOwnBundleLoginItem(); });
        return result;
    }
    static void add() {
        inPool([] { addOwnBundle(); });
    }
    static void remove() {
        inPool([] { removeOwnBundle(); });
    }
    /// Without user interaction (1) and without mounting (2).
    static std::string resolving(const std::string& path) {
        return "LSSharedFileListItemCopyResolvedURL(" + path + ", 3)";
    }

    const std::string create = "LSSharedFileListCreate(session login items)";
    const std::string snapshot = "LSSharedFileListCopySnapshot()";
    const std::string own = ownBundlePath();
};

TEST_F(LoginItemsTest, WithoutASessionListTheBundleIsNoLoginItem) {
    answers().sessionListExists = false;
    answers().loginItems = {own};
    EXPECT_FALSE(isLoginItem());
    EXPECT_EQ(calls(), Calls{create});
}

TEST_F(LoginItemsTest, WithoutASnapshotTheBundleIsNoLoginItem) {
    answers().snapshotExists = false;
    EXPECT_FALSE(isLoginItem());
    EXPECT_EQ(calls(), (Calls{create, snapshot}));
}

TEST_F(LoginItemsTest, AnEmptyListHasNoLoginItem) {
    EXPECT_FALSE(isLoginItem());
    EXPECT_EQ(calls(), (Calls{create, snapshot}));
}

TEST_F(LoginItemsTest, OtherItemsAreNotTheBundle) {
    answers().loginItems = {"/Applications/Other.app", own + "/inner"};
    EXPECT_FALSE(isLoginItem());
    EXPECT_EQ(
        calls(), (Calls{create, snapshot, resolving("/Applications/Other.app"), resolving(own + "/inner")}));
}

TEST_F(LoginItemsTest, ItemsThatDoNotResolveAreSkippedAndTheFirstMatchEndsTheSearch) {
    answers().loginItems = {std::nullopt, "/Applications/Other.app", own, own};
    EXPECT_TRUE(isLoginItem());
    EXPECT_EQ(calls(),
        (Calls{create, snapshot, resolving("gone"), resolving("/Applications/Other.app"), resolving(own)}));
}

TEST_F(LoginItemsTest, AddingInsertsTheBundleLastWithNothingElse) {
    add();
    EXPECT_EQ(calls(), (Calls{create, "LSSharedFileListInsertItemURL(last, name none, icon none, " + own +
                                          ", properties none and none)"}));
}

TEST_F(LoginItemsTest, AddingWithoutASessionListDoesNothing) {
    answers().sessionListExists = false;
    add();
    EXPECT_EQ(calls(), Calls{create});
}

TEST_F(LoginItemsTest, AFailedInsertionIsIgnored) {
    answers().snapshotExists = false;
    add();
    EXPECT_EQ(calls().size(), 2U);
}

TEST_F(LoginItemsTest, RemovingTakesOutTheFoundItem) {
    answers().loginItems = {"/Applications/Other.app", own};
    remove();
    EXPECT_EQ(calls(), (Calls{create, snapshot, resolving("/Applications/Other.app"), resolving(own),
                           "LSSharedFileListItemRemove(" + own + ")"}));
}

TEST_F(LoginItemsTest, RemovingWhatIsNotThereRemovesNothing) {
    answers().loginItems = {"/Applications/Other.app"};
    remove();
    EXPECT_EQ(calls(), (Calls{create, snapshot, resolving("/Applications/Other.app")}));
}

TEST_F(LoginItemsTest, RemovingWithoutASessionListDoesNothing) {
    answers().sessionListExists = false;
    remove();
    EXPECT_EQ(calls(), Calls{create});
}

} // namespace
} // namespace tarnwick::standins
