#include "StandInTest.h"

#include "integration/ScriptHelper.h"
#include "platform/UserScript.h"

namespace tarnwick::standins {
namespace {

class UserScriptsTest : public StandInTest {
protected:
    static constexpr auto path = "/Users/u/Library/Application Scripts/org.halvane.Tarnwick/applescript.scpt";
};

TEST_F(UserScriptsTest, SendsTheHandlerCallEventToTheTask) {
    inPool([] {
        const auto result = makeUserScripts()->makeTask(path);
        ASSERT_TRUE(result.task);
        EXPECT_EQ(result.error, "");
        result.task->execute(restartFinderEventDescriptor("restartFinder"));
    });
    drainQueues();
    EXPECT_EQ(
        calls(), (Calls{"initWithURL(" + std::string(path) + ")",
                     "executeWithAppleEvent(ascr psbr to (psn  <00000000 02000000>) return -1 transaction 0, "
                     "snam = \"restartFinder\")",
                     "completion with an error", "task freed"}));
}

TEST_F(UserScriptsTest, ATaskLivesUntilItHasServedItsCallOrItsOwnerIsGone) {
    std::unique_ptr<UserScriptTask> task;
    inPool([&task] { task = makeUserScripts()->makeTask(path).task; });
    // The pool in which it was made is gone; the task is not.
    inPool([&task] { task->execute(restartFinderEventDescriptor("initialize")); });
    EXPECT_NE(calls().at(1).find("snam = \"initialize\""), std::string::npos);
    drainQueues();
    EXPECT_EQ(calls().back(), "completion with an error");
    task.reset();
    EXPECT_EQ(calls().back(), "task freed");
}

TEST_F(UserScriptsTest, AMissingScriptGivesNoTaskAndTheSystemsReason) {
    answers().scriptExists = false;
    inPool([] {
        const auto result = makeUserScripts()->makeTask(path);
        EXPECT_FALSE(result.task);
        EXPECT_NE(result.error.find("no such script"), std::string::npos) << result.error;
    });
    EXPECT_EQ(calls(), (Calls{"initWithURL(" + std::string(path) + ")", "task freed"}));
}

} // namespace
} // namespace tarnwick::standins
