#include "tests/gui/Driver.h"
#include "tests/gui/Foreign.h"
#include "tests/gui/Input.h"
#include "tests/gui/Panels.h"

#include <gtest/gtest.h>

namespace tarnwick::gui {
namespace {

TEST(FirstLaunch, PromptsToEnableTheExtensionAndRemembersThat) {
    EXPECT_EQ(lastAlertText(), "Enable Extension");
    EXPECT_TRUE(waitUntil([] { return local("d.get('ShownEnableExtensionAlert')") == "True"; }));
}

TEST(FirstLaunch, PublishesWhatIsEnabled) {
    EXPECT_EQ(shared("[len(d[k]) for k in ('arrOfCreateNewFile', 'arrOfCopyFilesTo', 'arrOfCustomIcon', "
                     "'arrOfOthers')]"),
        "[9, 0, 20, 18]");
    EXPECT_EQ(shared("'arrOfCommonPath' in d"), "False");
    EXPECT_EQ(shared("len(d['arrOfEnableOther'])"), "11");
    EXPECT_EQ(
        shared("d['arrOfEnableOther'][2:4]"), "['enableOpenPathInTerminal', 'enableOpenPathInTerminal']");
}

TEST(FirstLaunch, SeedsFourteenSwitchesAsBooleansInBothStores) {
    EXPECT_EQ(shared("sum(v is True for v in d.values())"), "14");
    EXPECT_EQ(local("all(d[k] is True for k in ('soundTipsOfNewFile', 'newWindowOfOpenIniTerm2', "
                    "'enableImagetoIcon'))"),
        "True");
    EXPECT_EQ(local("'disableAutoNameOfCreateNewFile' in d"), "False");
}

TEST(FirstLaunch, KeepsTheFullListsWithTheirTypes) {
    EXPECT_EQ(local("[len(d[k]) for k in ('arrOfCreateNewFile', 'arrOfCustomIcon', 'arrOfOthers')]"),
        "[15, 20, 18]");
    EXPECT_EQ(local("[r['enable'] for r in d['arrOfCreateNewFile']]"),
        "['1', '1', '1', '1', '1', '1', '1', '1', '1', '0', '0', '0', '0', '0', '0']");
    EXPECT_EQ(local("set(type(r['enable']).__name__ for r in d['arrOfCustomIcon'])"), "{'int'}");
    EXPECT_EQ(local("set(r['icon'][:2] for r in d['arrOfCustomIcon']) <= {b'II', b'MM'}"), "True");
    EXPECT_EQ(local("d['enableAllOfCreateNewFiles'], d['enableAllOfCustomIcon']"), "(False, True)");
}

TEST(FirstLaunch, KeepsEachDomainUnderFourMegabytes) {
    EXPECT_EQ(local("size < 4 * 2**20"), "True");
    EXPECT_EQ(shared("size < 4 * 2**20"), "True");
}

TEST(FirstLaunch, LaysOutTemplatesAndIcons) {
    EXPECT_EQ(containerFolder("Templates/FunctionIcon"),
        "['commonPath.png', 'copyFilesTo.png', 'createNewFile.png', 'customIcon.png', 'moveFilesTo.png']");
    EXPECT_NE(containerFolder("Templates/CreateNewFile").find("'Keynote.key'"), std::string::npos);
    EXPECT_NE(containerFolder("Templates/OthersMenuItemIcon").find("'Paste.png'"), std::string::npos);
}

} // namespace
} // namespace tarnwick::gui
