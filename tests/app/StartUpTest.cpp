#include "app/ApplicationDelegate.h"
#include "tests/support/SettingsFixture.h"

#include <set>

namespace tarnwick::testing {
namespace {

/// The steps of a launch after the login-item refusal, in the order in which the platform takes them.
class StartUpTest : public SettingsFixture {
protected:
    void loadInterface() { controller_.awakeFromNib(); }
    void finishLaunching() { delegate_.applicationWillFinishLaunching(); }
    void runMainLoop() { platform_.runLoop.runMain(); }
    void startUp() {
        loadInterface();
        finishLaunching();
        runMainLoop();
    }
    [[nodiscard]] bool published() const {
        return platform_.log.holds("shared set arrOfCreateNewFile") ||
               platform_.log.holds("shared set arrOfCopyFilesTo") ||
               platform_.log.holds("shared set arrOfCustomIcon") ||
               platform_.log.holds("shared set arrOfOthers");
    }
    void refuse() { platform_.workspace.registered["org.halvane.Tarnwick"] = {{"/a/Tarnwick.app"}, false}; }

    /// The lines of the log that are among these, in the log's order.
    [[nodiscard]] std::vector<std::string> order(const std::set<std::string>& wanted) const {
        std::vector<std::string> found;
        for (const auto& line : platform_.log.lines()) {
            if (wanted.count(line) != 0) {
                found.push_back(line);
            }
        }
        return found;
    }

    InMemoryApplicationWindow frame_{platform_.log};
    ApplicationDelegate delegate_{platform_.ports(), frame_};
};

TEST_F(StartUpTest, TheStoresAreOpenedThenTheGuardPassesThenTheWindowIsActivatedThenThePromptIsShown) {
    startUp();
    EXPECT_EQ(order({"local open", "schedule", "movable by background", "activate", "queue on main",
                  "alert Enable Extension", "local set ShownEnableExtensionAlert"}),
        (std::vector<std::string>{"local open", "schedule", "movable by background", "activate",
            "queue on main", "alert Enable Extension", "local set ShownEnableExtensionAlert"}));
    EXPECT_TRUE(published());
    EXPECT_TRUE(platform_.process.exits.empty());
}

TEST_F(StartUpTest, AnAcceptedLaunchPublishesOnlyOnceTheMainLoopRuns) {
    loadInterface();
    finishLaunching();
    // A first launch builds the factory lists, which publishes them; from the second on there is nothing to
    // build.
    platform_.runLoop.runMain();
    platform_.log.clear();
    loadInterface();
    finishLaunching();
    EXPECT_FALSE(published());
    runMainLoop();
    EXPECT_TRUE(published());
}

TEST_F(StartUpTest, ARefusedCopyHasShownNothingButTheRefusalWhenItEnds) {
    refuse();
    loadInterface();
    finishLaunching();
    EXPECT_EQ(platform_.log.linesWith("alert"), (std::vector<std::string>{"alert Warning"}));
    EXPECT_EQ(platform_.log.lines().back(), "exit 0");
    EXPECT_EQ(platform_.process.exits, (std::vector<int>{0}));
}

TEST_F(StartUpTest, ARefusedSecondLaunchHasPublishedNothingWhenItEnds) {
    launch();
    refuse();
    loadInterface();
    finishLaunching();
    EXPECT_EQ(platform_.process.exits, (std::vector<int>{0}));
    EXPECT_FALSE(published());
}

} // namespace
} // namespace tarnwick::testing
