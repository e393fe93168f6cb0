#include "tests/support/Categories.h"
#include "tests/support/SettingsFixture.h"

#include <algorithm>

namespace tarnwick::testing {
namespace {

/// When the files and folders behind rules are looked at, and when they are left alone.
class LookingTest : public SettingsFixture {
protected:
    void launchWith(const std::vector<std::string>& paths) {
        std::vector<RuleRecord> records;
        records.reserve(paths.size());
        for (const auto& path : paths) {
            records.push_back(makeRecord({{"enable", 1}, {"realPath", path}, {"displayName", ""}}));
        }
        storeList(folders, std::move(records));
        launch();
        controller_.warnings().watch();
        controller_.showPage(Page::commonPath);
    }
    /// Lets what is put off happen, and gives the paths that were looked at meanwhile.
    [[nodiscard]] std::vector<std::string> looks() {
        platform_.files.asked.clear();
        platform_.runLoop.runMain();
        return platform_.files.asked;
    }
    [[nodiscard]] bool looksAt(const std::string& path) {
        const auto all = looks();
        return std::find(all.begin(), all.end(), path) != all.end();
    }
    /// From now on a look at this path takes so long.
    void delay(const std::string& slow, double seconds) {
        platform_.files.asking = [this, slow, seconds](const std::string& path) {
            platform_.runLoop.time += path == slow ? seconds : 0;
        };
    }
};

TEST_F(LookingTest, NothingIsLookedAtUnlessTheWindowWantsToKnow) {
    storeList(folders, {makeRecord({{"realPath", "/a"}})});
    launch();
    controller_.showPage(Page::commonPath);
    controller_.warnings().applicationActivated();
    EXPECT_TRUE(looks().empty());
    EXPECT_FALSE(platform_.log.holds("show faults commonPath"));
}

TEST_F(LookingTest, ShowingAPageAndComingBackLookAtItsListAlone) {
    storeList(RuleCategory::copyFilesTo, {makeRecord({{"realPath", "/target"}})});
    launchWith({"/a"});
    EXPECT_EQ(looks(), (std::vector<std::string>{"/a", "/a"}));
    EXPECT_TRUE(looks().empty());
    controller_.warnings().applicationActivated();
    EXPECT_EQ(looks(), (std::vector<std::string>{"/a", "/a"}));
    controller_.showPage(Page::moreApps);
    controller_.warnings().applicationActivated();
    EXPECT_TRUE(looks().empty());
}

TEST_F(LookingTest, AnEditIsOverBeforeAnythingIsLookedAt) {
    launchWith({"/a"});
    static_cast<void>(looks());
    platform_.log.clear();
    platform_.runLoop.delays.clear();
    controller_.textEdited("commonPathDisplayName", 0, "New");
    EXPECT_TRUE(platform_.files.asked == (std::vector<std::string>{"/a", "/a"}));
    EXPECT_EQ(platform_.log.lines().back(), "schedule");
    EXPECT_EQ(platform_.runLoop.delays, std::vector<double>{0.3});
    EXPECT_TRUE(looksAt("/a"));
}

TEST_F(LookingTest, AChangeOfAListThatIsNotShownIsLookedAtWithItsPage) {
    launchWith({"/a"});
    static_cast<void>(looks());
    controller_.reset(RuleCategory::copyFilesTo);
    EXPECT_TRUE(looks().empty());
}

TEST_F(LookingTest, TheRowsInSightComeFirst) {
    launchWith({"/a", "/b", "/c", "/d", "/e"});
    window_.inSight = {3, 4};
    EXPECT_EQ(looks(), (std::vector<std::string>{"/d", "/e", "/a", "/b", "/c", "/d", "/e"}));
}

TEST_F(LookingTest, ALongListIsLookedAtInSlicesBetweenWhichTheRunLoopGoesOn) {
    launchWith(std::vector<std::string>(100, "/a"));
    delay("/a", 0.001);
    platform_.runLoop.delays.clear();
    EXPECT_EQ(looks().size(), 103U);
    // Four milliseconds each.
    EXPECT_EQ(platform_.runLoop.delays.size(), 24U);
    EXPECT_EQ(window_.faults[folders], "100 folders cannot be found");
}

TEST_F(LookingTest, AnEditInTheMiddleOfAPassBeginsAnother) {
    launchWith(std::vector<std::string>(100, "/a"));
    bool edited = false;
    platform_.files.asking = [&](const std::string&) {
        platform_.runLoop.time += 0.001;
        if (!std::exchange(edited, true)) {
            platform_.runLoop.performAfterDelay(0, [&] {
                window_.table(folders).selected = 0;
                controller_.remove(folders);
            });
        }
    };
    EXPECT_LT(looks().size(), 110U);
    EXPECT_EQ(window_.faults[folders], "99 folders cannot be found");
}

TEST_F(LookingTest, AVolumeThatLetALookWaitIsSparedUntilTheUserComesBack) {
    launchWith({"/Volumes/Slow/a", "/Volumes/Slow/b", "/Volumes/Fast/c"});
    delay("/Volumes/Slow/a", 0.051);
    EXPECT_EQ(looks(), (std::vector<std::string>{"/Volumes/Slow/a", "/Volumes/Fast/c", "/Volumes/Fast/c"}));
    controller_.showPage(Page::commonPath);
    EXPECT_FALSE(looksAt("/Volumes/Slow/b"));
    delay("", 0);
    controller_.warnings().applicationActivated();
    EXPECT_TRUE(looksAt("/Volumes/Slow/b"));
}

TEST_F(LookingTest, WhatIsKnownOfASparedVolumeStaysKnown) {
    launchWith({"/Volumes/Slow/gone"});
    delay("/Volumes/Slow/gone", 1);
    static_cast<void>(looks());
    controller_.showPage(Page::commonPath);
    static_cast<void>(looks());
    EXPECT_EQ(window_.faults[folders], "1 folder cannot be found");
}

TEST_F(LookingTest, AlmostFiftyMillisecondsAreNotTooLong) {
    launchWith({"/Volumes/Slow/a"});
    delay("/Volumes/Slow/a", 0.0499);
    static_cast<void>(looks());
    controller_.showPage(Page::commonPath);
    EXPECT_TRUE(looksAt("/Volumes/Slow/a"));
}

class VolumeTest : public LookingTest, public ::testing::WithParamInterface<std::array<const char*, 3>> {};

TEST_P(VolumeTest, ASlowOneIsSparedAndItsNeighbourIsNot) {
    const auto& [slow, sameVolume, neighbour] = GetParam();
    launchWith({slow, sameVolume, neighbour});
    delay(slow, 1);
    EXPECT_EQ(looks(), (std::vector<std::string>{slow, neighbour, neighbour}));
}

INSTANTIATE_TEST_SUITE_P(Every, VolumeTest,
    ::testing::Values(std::array{"/Volumes/A", "/Volumes/A/b/c", "/Volumes/AB"},
        std::array{"/media/anna/A/b", "/media/anna/A", "/media/anna/B"},
        std::array{"/run/media/anna/A/b", "/run/media/anna/A", "/run/media/anna"},
        std::array{"/mnt/A/b", "/mnt/A", "/Users/anna"},
        std::array{"/net/host/a", "/net/host/b", "/net/other"},
        std::array{"/Network/Servers/a/b", "/Network/Servers/a", "/Network/Servers/b"},
        std::array{"/Users/anna", "/tmp", "/Volumes/A"}));

TEST_F(LookingTest, APictureIsReadOnceForAsLongAsItsListHoldsIt) {
    const PlistData bad({1, 2, 3});
    storeList(RuleCategory::customIcon, {makeRecord({{"displayName", "A"}, {"icon", bad}})});
    launch();
    controller_.warnings().watch();
    controller_.showPage(Page::customIcon);
    platform_.runLoop.runMain();
    const auto before = platform_.images.reads;
    EXPECT_GT(before, 0U);
    controller_.showPage(Page::customIcon);
    controller_.textEdited("CustomIconName", 0, "B");
    platform_.runLoop.runMain();
    EXPECT_EQ(platform_.images.reads, before);
    EXPECT_EQ(window_.faults[RuleCategory::customIcon], "1 picture cannot be shown");
}

} // namespace
} // namespace tarnwick::testing
