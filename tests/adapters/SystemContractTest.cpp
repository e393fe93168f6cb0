#include "Contract.h"
#include "Waiting.h"

#include "adapters/foundation/Adapters.h"
#include "adapters/foundation/SystemAdapters.h"
#include "platform/ApplicationBundle.h"
#include "platform/KnownFolders.h"
#include "platform/Process.h"
#include "platform/SystemLog.h"
#include "platform/UserScript.h"
#include "tests/adapters/SystemState.h"
#include "tests/support/InMemoryBundle.h"
#include "tests/support/InMemoryFolders.h"
#include "tests/support/InMemorySystem.h"

#include <cstdlib>
#include <fstream>
#include <sys/stat.h>

namespace tarnwick::testing {
namespace {

/// One of the small ports of the system, each in either implementation.
class System {
public:
    explicit System(Implementation implementation)
        : isReal_(implementation == Implementation::overThePlatform) {}

    SystemLog& log() { return pick<SystemLog>(*realLog_, memoryLog_); }
    Process& process() { return pick<Process>(*realProcess_, memoryProcess_); }
    ApplicationBundle& bundle() { return pick<ApplicationBundle>(*realBundle_, memoryBundle_); }
    KnownFolders& folders() { return pick<KnownFolders>(*realFolders_, memoryFolders_); }
    UserScripts& scripts() { return pick<UserScripts>(*realScripts_, memoryScripts_); }

    /// What has been logged by `work`.
    std::string logged(const std::function<void()>& work) {
        if (isReal_) {
            return standardErrorOf(work);
        }
        work();
        return memoryLog_.lines.back();
    }
    /// An installed script that notes its handler, and what it has noted.
    std::string installScript() {
        const auto folder = std::string(std::getenv("TARNWICK_USER_FOLDER"));
        const auto path = folder + "/script's file.sh";
        std::ofstream(path) << "printf '%s' \"$1\" >'" << folder << "/noted.new'; mv '" << folder
                            << "/noted.new' '" << folder << "/noted'\n";
        memoryScripts_.installed.insert(path);
        return path;
    }
    std::string handlerThatRan() {
        if (!isReal_) {
            return memoryScripts_.events.empty() ? "" : memoryScripts_.events.back().parameterText;
        }
        const auto path = std::string(std::getenv("TARNWICK_USER_FOLDER")) + "/noted";
        std::string handler;
        runLoopUntil([&] { return static_cast<bool>(std::ifstream(path) >> handler); });
        return handler;
    }
    /// What the system says of the extension.
    void setExtension(bool isCarried, bool isEnabled) {
        memoryBundle_.extension = isCarried;
        memoryBundle_.extensionEnabled = isEnabled;
        state_.set("carriesNoExtension", !isCarried);
        state_.set("extensionIsOff", !isEnabled);
    }
    /// The in-memory process gives what it is told to.
    void expectOutput(const std::string& output) { memoryProcess_.answer = output; }

private:
    template <typename Port>
    Port& pick(Port& real, Port& memory) {
        return isReal_ ? real : memory;
    }

    bool isReal_;
    SystemState state_;
    CallLog calls_;
    InMemorySystemLog memoryLog_{calls_};
    InMemoryProcess memoryProcess_{calls_};
    InMemoryBundle memoryBundle_{calls_};
    InMemoryFolders memoryFolders_;
    InMemoryUserScripts memoryScripts_{calls_};
    std::unique_ptr<SystemLog> realLog_ = makeSystemLog();
    std::unique_ptr<Process> realProcess_ = makeProcess();
    std::unique_ptr<ApplicationBundle> realBundle_ = makeApplicationBundle();
    std::unique_ptr<KnownFolders> realFolders_ = makeKnownFolders();
    std::unique_ptr<UserScripts> realScripts_ = makeUserScripts();
};

using SystemContract = Contract<System>;

TEST_P(SystemContract, ALineIsLoggedAsItStands) {
    const std::string line = "100 % of \"%@\" \u8868 %s %n";
    EXPECT_NE(harness_.logged([&] { harness_.log().write(line); }).find(line), std::string::npos);
}

TEST_P(SystemContract, AProgramsOutputIsItsBytes) {
    harness_.expectOutput("one\ntwo");
    const auto output = harness_.process().output("/bin/sh", {"-c", "printf 'one\\ntwo'"});
    EXPECT_EQ(std::string(output.bytes(), output.bytes() + output.size()), "one\ntwo");
}

TEST_P(SystemContract, AnOlderSystemIsNoNewerOne) {
    EXPECT_TRUE(harness_.process().isSystemAtLeast(10, 0, 0));
    EXPECT_TRUE(harness_.process().isSystemAtLeast(10, 14, 0));
    EXPECT_TRUE(harness_.process().isSystemAtLeast(10, 15, 0));
}

TEST_P(SystemContract, TheExtensionIsThereAndEnabledUnlessTheSystemSaysOtherwise) {
    EXPECT_TRUE(harness_.bundle().carriesExtension());
    EXPECT_TRUE(harness_.bundle().isExtensionEnabled());
    harness_.setExtension(true, false);
    EXPECT_TRUE(harness_.bundle().carriesExtension());
    EXPECT_FALSE(harness_.bundle().isExtensionEnabled());
    harness_.setExtension(false, true);
    EXPECT_FALSE(harness_.bundle().carriesExtension());
    EXPECT_TRUE(harness_.bundle().isExtensionEnabled());
}

TEST_P(SystemContract, AskingWhereTheExtensionIsEnabledChangesNothing) {
    harness_.setExtension(true, false);
    harness_.bundle().showExtensionManagementInterface();
    EXPECT_FALSE(harness_.bundle().isExtensionEnabled());
}

TEST_P(SystemContract, ATextThatNoTableHoldsStandsForItself) {
    EXPECT_EQ(harness_.bundle().localized("no such text, 100 %"), "no such text, 100 %");
}

TEST_P(SystemContract, TheBundlesFoldersAreAbsoluteWithoutTrailingSlash) {
    for (const auto& folder : {harness_.bundle().resourceFolder(), harness_.bundle().plugInsFolder()}) {
        EXPECT_EQ(folder.front(), '/');
        EXPECT_NE(folder.back(), '/');
    }
    EXPECT_FALSE(harness_.bundle().isLoginItem());
}

TEST_P(SystemContract, TheUsersFoldersAreAbsoluteAndStayTheSame) {
    auto& folders = harness_.folders();
    const auto scripts = folders.applicationScripts();
    const auto container = folders.groupContainer("H7Q2ZK5RX9.org.halvane.Tarnwick");
    ASSERT_TRUE(scripts.path && container);
    EXPECT_EQ(scripts.error, "");
    for (const auto& folder : {*scripts.path, *container, folders.library(), folders.temporary()}) {
        EXPECT_EQ(folder.front(), '/') << folder;
        EXPECT_NE(folder.back(), '/') << folder;
    }
    EXPECT_EQ(folders.applicationScripts().path, scripts.path);
    EXPECT_EQ(folders.groupContainer("H7Q2ZK5RX9.org.halvane.Tarnwick"), container);
    EXPECT_EQ(folders.temporary(), folders.temporary());
    EXPECT_FALSE(folders.userName().empty());
}

TEST_P(SystemContract, AProcessIsThereUntilItEnds) {
    auto& process = harness_.process();
    EXPECT_GT(process.identifier(), 0);
    EXPECT_TRUE(process.isRunning(process.identifier()));
    harness_.expectOutput("4194000");
    const auto output = process.output("/bin/sh", {"-c", "printf $$"});
    const auto ended = std::atoi(std::string(output.bytes(), output.bytes() + output.size()).c_str());
    EXPECT_TRUE(runLoopUntil([&] { return !process.isRunning(ended); }));
}

TEST_P(SystemContract, AScriptThatIsNotThereGivesAReasonInsteadOfATask) {
    const auto result = harness_.scripts().makeTask("/nowhere/applescript.scpt");
    EXPECT_FALSE(result.task);
    EXPECT_FALSE(result.error.empty());
}

TEST_P(SystemContract, ATaskRunsTheHandlerOfItsEvent) {
    const auto result = harness_.scripts().makeTask(harness_.installScript());
    ASSERT_TRUE(result.task);
    EXPECT_EQ(result.error, "");
    HandlerCallEvent event;
    event.parameterText = "openServices";
    result.task->execute(event);
    EXPECT_EQ(harness_.handlerThatRan(), "openServices");
}

TARNWICK_BOTH_IMPLEMENTATIONS(SystemContract);

} // namespace
} // namespace tarnwick::testing
