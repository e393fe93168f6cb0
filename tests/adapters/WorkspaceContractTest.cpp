#include "Contract.h"
#include "Waiting.h"

#include "adapters/foundation/Adapters.h"
#include "adapters/foundation/SystemAdapters.h"
#include "tests/adapters/SystemState.h"
#include "tests/support/InMemoryWorkspace.h"
#include "values/PathText.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sys/stat.h>

namespace tarnwick::testing {
namespace {

/// A desktop without a file manager, whose program for files and addresses writes down what it is to open.
class Desktop {
public:
    explicit Desktop(Implementation implementation) {
        if (implementation == Implementation::overThePlatform) {
            std::remove((folder_ + "/opener-told").c_str());
            makeProgram("dbus-send", "exit 1");
            makeProgram("opener", "printf '%s' \"$1\" >\"$0-new\"; mv \"$0-new\" \"$0-told\"");
            setenv("PATH", (folder_ + ":" + std::getenv("PATH")).c_str(), 1);
            setenv("TARNWICK_OPENER", (folder_ + "/opener").c_str(), 1);
            prepareProcess(0, nullptr);
            real_ = makeWorkspace();
        }
    }
    Workspace& port() { return real_ ? *real_ : static_cast<Workspace&>(memory_); }
    /// What has been opened, once it is; a file that is shown opens its folder.
    std::string opened() {
        if (!real_) {
            const auto line = log_.lines().empty() ? std::string() : log_.lines().back();
            const auto path = line.substr(line.find('/'));
            return line.starts_with("show ") ? path.substr(0, path.rfind('/')) : path;
        }
        const auto told = folder_ + "/opener-told";
        std::string what;
        runLoopUntil([&] { return static_cast<bool>(std::getline(std::ifstream(told), what)); });
        return what;
    }
    void registerCopies(const std::vector<std::string>& paths) {
        memory_.registered["org.halvane.Tarnwick"] = {paths, false};
        state_.set("copies", PlistArray(paths.begin(), paths.end()));
    }

private:
    void makeProgram(const std::string& name, const std::string& script) {
        const auto path = folder_ + "/" + name;
        std::ofstream(path) << "#!/bin/sh\n" << script << "\n";
        chmod(path.c_str(), S_IRWXU);
    }

    const std::string folder_ = std::getenv("TARNWICK_USER_FOLDER");
    CallLog log_;
    InMemoryWorkspace memory_{log_};
    SystemState state_;
    std::unique_ptr<Workspace> real_;
};

using WorkspaceContract = Contract<Desktop>;

TEST_P(WorkspaceContract, AnApplicationThatNobodyKnowsIsNowhere) {
    const auto& workspace = harness_.port();
    EXPECT_EQ(workspace.applicationPath("org.example.Nobody"), std::nullopt);
    EXPECT_TRUE(workspace.registeredApplications("org.example.Nobody").paths.empty());
    EXPECT_FALSE(workspace.registeredApplications("org.example.Nobody").failed);
    EXPECT_FALSE(workspace.isRunning("org.example.Nobody"));
}

TEST_P(WorkspaceContract, RegisteredCopiesComeInTheirOrder) {
    const std::vector<std::string> copies{"/Applications/Tarnwick.app", "/Users/anna/Tarnwick.app"};
    harness_.registerCopies(copies);
    const auto registered = harness_.port().registeredApplications("org.halvane.Tarnwick");
    EXPECT_EQ(registered.paths, copies);
    EXPECT_FALSE(registered.failed);
}

TEST_P(WorkspaceContract, AFileIsOpened) {
    harness_.port().openFile("/a folder/letter.txt");
    EXPECT_EQ(harness_.opened(), "/a folder/letter.txt");
}

TEST_P(WorkspaceContract, AFileIsShownInItsFolder) {
    harness_.port().showInFileViewer("/a folder/letter, \u8868.txt");
    EXPECT_EQ(harness_.opened(), "/a folder");
}

TEST_P(WorkspaceContract, OpeningWhatCannotBeOpenedIsNotReported) {
    auto& workspace = harness_.port();
    workspace.openURL("no address at all %%");
    workspace.openURL("");
    workspace.launchApplication("/nowhere/Nothing.app");
    workspace.terminateAll("org.example.Nobody");
    EXPECT_FALSE(workspace.isRunning("org.example.Nobody"));
}

TARNWICK_BOTH_IMPLEMENTATIONS(WorkspaceContract);

} // namespace
} // namespace tarnwick::testing
