#pragma once

#include "platform/Process.h"
#include "platform/SystemLog.h"
#include "platform/UserScript.h"
#include "tests/support/CallLog.h"

#include <set>
#include <string>
#include <utility>
#include <vector>

namespace tarnwick::testing {

/// Makes tasks for the paths in `installed`. Logs "execute HANDLER" and keeps each event.
class InMemoryUserScripts final : public UserScripts {
public:
    explicit InMemoryUserScripts(CallLog& log) : log_(log) {}
    std::set<std::string> installed;
    std::string error = "no such file";
    std::vector<HandlerCallEvent> events;
    UserScriptTaskResult makeTask(const std::string& path) override;

private:
    class Task;
    CallLog& log_;
};

/// Logs "log LINE" and keeps the lines.
class InMemorySystemLog final : public SystemLog {
public:
    explicit InMemorySystemLog(CallLog& log) : log_(log) {}
    std::vector<std::string> lines;
    void write(std::string_view line) override;

private:
    CallLog& log_;
};

/// Does not end anything; logs "exit STATUS". Runs no program: gives the bytes of `answer` and keeps what was
/// to run.
class InMemoryProcess final : public Process {
public:
    explicit InMemoryProcess(CallLog& log) : log_(log) {}
    std::vector<int> exits;
    int number = 100;
    /// The other processes that are there.
    std::set<int> others;
    int major = 10;
    int minor = 15;
    int patch = 0;
    std::vector<std::pair<std::string, std::vector<std::string>>> runs;
    std::string answer;

    void exit(int status) override;
    int identifier() const override { return number; }
    bool isRunning(int identifier) const override {
        return identifier == number || others.count(identifier) != 0;
    }
    bool isSystemAtLeast(int otherMajor, int otherMinor, int otherPatch) const override;
    PlistData output(const std::string& launchPath, const std::vector<std::string>& arguments) override;

private:
    CallLog& log_;
};

} // namespace tarnwick::testing
