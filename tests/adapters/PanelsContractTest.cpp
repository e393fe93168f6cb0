#include "Contract.h"
#include "PanelDriver.h"
#include "Waiting.h"

#include "adapters/foundation/Adapters.h"
#include "tests/support/InMemoryPanels.h"

#include <cstdlib>
#include <fstream>
#include <sys/stat.h>

namespace tarnwick::testing {
namespace {

/// The panels, and a person in front of them.
class Person {
public:
    explicit Person(Implementation implementation) {
        if (implementation == Implementation::overThePlatform) {
            becomeApplication();
            real_ = makePanels();
        }
        mkdir(folder.c_str(), S_IRWXU);
        std::ofstream(folder + "/only.plist") << "x";
    }
    Panels& port() { return real_ ? *real_ : static_cast<Panels&>(memory_); }

    /// Will press the button of this number, with this title, in the next alert.
    void press(long number, const std::string& title) {
        memory_.answers.push_back(alertFirstButton + number);
        if (real_) {
            pressInNextAlert(title);
        }
    }
    /// Confirms the panel that has been asked for, with the only file that is there.
    void choose() { real_ ? chooseOnlyFileInNextPanel() : memory_.confirm({folder + "/only.plist"}); }
    /// Confirms the panel that has been asked for, with the name that it proposes.
    void save() {
        real_ ? confirmNextPanel() : memory_.confirm({folder + "/" + memory_.saveRequests.back().name});
    }
    void cancel() { real_ ? cancelNextPanel() : memory_.cancel(); }

    const std::string folder = std::string(std::getenv("TARNWICK_USER_FOLDER")) + "/panels";

private:
    CallLog log_;
    InMemoryPanels memory_{log_};
    std::unique_ptr<Panels> real_;
};

using PanelsContract = Contract<Person>;

TEST_P(PanelsContract, AnAlertGivesTheNumberOfItsButton) {
    const AlertRequest request{
        .style = AlertStyle::warning, .messageText = "Import?", .buttons = {"Import", "Cancel", "Export"}};
    harness_.press(0, "Import");
    EXPECT_EQ(harness_.port().runAlert(request), alertFirstButton);
    harness_.press(2, "Export");
    EXPECT_EQ(harness_.port().runAlert(request), alertFirstButton + 2);
    harness_.press(1, "Cancel");
    EXPECT_EQ(harness_.port().runAlert(request), alertFirstButton + 1);
}

TEST_P(PanelsContract, AChooserComesUpLaterAndGivesWhatWasChosenOnce) {
    std::vector<OpenPanelAnswer> answers;
    harness_.port().choose({.allowedFileTypes = {"plist"}, .startFolder = harness_.folder},
        [&answers](const OpenPanelAnswer& answer) { answers.push_back(answer); });
    EXPECT_TRUE(answers.empty());
    harness_.choose();
    EXPECT_TRUE(runLoopUntil([&answers] { return !answers.empty(); }));
    ASSERT_EQ(answers.size(), 1U);
    EXPECT_TRUE(answers[0].confirmed);
    EXPECT_EQ(answers[0].paths, std::vector<std::string>{harness_.folder + "/only.plist"});
}

TEST_P(PanelsContract, ACancelledChooserSaysSoWithoutPaths) {
    std::optional<OpenPanelAnswer> given;
    harness_.port().choose({.startFolder = harness_.folder}, [&](const auto& answer) { given = answer; });
    harness_.cancel();
    EXPECT_TRUE(runLoopUntil([&] { return given.has_value(); }));
    EXPECT_FALSE(given->confirmed);
    EXPECT_TRUE(given->paths.empty());
}

TEST_P(PanelsContract, APlaceIsAPathThatEndsInTheProposedName) {
    std::vector<std::optional<std::string>> places;
    harness_.port().choosePlace(
        {.name = "Settings \u8868.plist", .fileType = "plist", .startFolder = harness_.folder},
        [&places](const auto& place) { places.push_back(place); });
    EXPECT_TRUE(places.empty());
    harness_.save();
    EXPECT_TRUE(runLoopUntil([&places] { return !places.empty(); }));
    ASSERT_EQ(places.size(), 1U);
    ASSERT_TRUE(places[0]);
    EXPECT_TRUE(places[0]->starts_with("/")) << *places[0];
    EXPECT_TRUE(places[0]->ends_with("/Settings \u8868.plist")) << *places[0];
}

TEST_P(PanelsContract, ACancelledPlaceIsNone) {
    std::vector<std::optional<std::string>> places;
    harness_.port().choosePlace(
        {.name = "Settings.plist", .fileType = "plist", .startFolder = harness_.folder},
        [&places](const auto& place) { places.push_back(place); });
    harness_.cancel();
    EXPECT_TRUE(runLoopUntil([&places] { return !places.empty(); }));
    EXPECT_EQ(places, std::vector<std::optional<std::string>>{std::nullopt});
}

TARNWICK_BOTH_IMPLEMENTATIONS(PanelsContract);

} // namespace
} // namespace tarnwick::testing
