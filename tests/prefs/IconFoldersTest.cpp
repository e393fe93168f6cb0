#include "tests/support/PrefsFixture.h"

namespace tarnwick::testing {
namespace {

class IconFoldersTest : public PrefsFixture {
protected:
    [[nodiscard]] std::vector<std::string> copiesInto(const std::string& folder) const {
        std::vector<std::string> names;
        for (const auto& line : platform_.log.linesWith("copy /resources/")) {
            const auto arrow = line.find(" -> " + folder + "/");
            if (arrow != std::string::npos) {
                names.push_back(line.substr(16, arrow - 16));
            }
        }
        return names;
    }
};

const std::string sections = "/container/Templates/FunctionIcon";
const std::string others = "/container/Templates/OthersMenuItemIcon";

TEST_F(IconFoldersTest, TheFiveSectionIconsAreCopiedInOrder) {
    load();
    EXPECT_EQ(copiesInto(sections), (std::vector<std::string>{"createNewFile.png", "copyFilesTo.png",
                                        "moveFilesTo.png", "commonPath.png", "customIcon.png"}));
}

TEST_F(IconFoldersTest, TheFourteenOthersIconsAreCopiedInOrder) {
    load();
    EXPECT_EQ(copiesInto(others),
        (std::vector<std::string>{"Hidden Selected Files.png", "Hidden All Files in Path.png",
            "Nohidden Selected Files.png", "Nohidden All Files in Path.png", "Open in iTerm2.png",
            "Delete directly.png", "Open in Terminal.png", "Paste.png", "Copy Path.png", "Cut.png",
            "Image to Icon.png", "VSCode.png", "Sublime Text.png", "Emacs.png"}));
}

TEST_F(IconFoldersTest, AStaleFileIsGoneAfterTheNextLoad) {
    load();
    platform_.files.files[others + "/stale.png"] = "old";
    load();
    EXPECT_FALSE(platform_.files.exists(others + "/stale.png"));
    EXPECT_EQ(platform_.files.namesIn(others).size(), 14U);
    EXPECT_TRUE(platform_.log.holds("remove " + others));
}

TEST_F(IconFoldersTest, AMissingResourceLeavesTheRestCompleteAndIsSaidOnce) {
    platform_.files.files.erase("/resources/Paste.png");
    platform_.files.files.erase("/resources/customIcon.png");
    load();
    EXPECT_EQ(platform_.files.namesIn(others).size(), 13U);
    EXPECT_EQ(copiesInto(others).size(), 14U);
    EXPECT_EQ(platform_.systemLog.lines,
        std::vector<std::string>{"icons for the extension that could not be copied: 2"});
}

TEST_F(IconFoldersTest, WithoutAResourceFolderNothingIsCopied) {
    platform_.files.folders.erase("/resources");
    load();
    EXPECT_TRUE(copiesInto(sections).empty());
    EXPECT_TRUE(platform_.files.exists(sections));
}

TEST_F(IconFoldersTest, FailuresOfRemovingAndCreatingAreIgnored) {
    load();
    platform_.files.failing = {sections, others};
    load();
    EXPECT_EQ(platform_.files.namesIn(sections).size(), 5U);
    EXPECT_EQ(list(RuleCategory::others).size(), 18U);
}

TEST_F(IconFoldersTest, WithoutAGroupContainerTheLoadGoesOnAndKeepsStoredTemplates) {
    storeList(RuleCategory::createNewFile, {makeRecord({{"enable", "1"}, {"displayName", "Mine"}})});
    platform_.folders.container.reset();
    load();
    EXPECT_EQ(list(RuleCategory::createNewFile).size(), 1U);
    EXPECT_EQ(platform_.systemLog.lines.size(), 1U);
}

TEST_F(IconFoldersTest, AFirstRunWithoutAGroupContainerStillHasItsTemplates) {
    platform_.folders.container.reset();
    load();
    EXPECT_EQ(list(RuleCategory::createNewFile).size(), 15U);
    EXPECT_EQ(platform_.systemLog.lines.size(), 1U);
}

TEST_F(IconFoldersTest, TheContainerIsThatOfTheApplicationGroup) {
    load();
    EXPECT_EQ(platform_.folders.askedGroup, "H7Q2ZK5RX9.org.halvane.Tarnwick");
}

} // namespace
} // namespace tarnwick::testing
