#pragma once

#include "platform/Clock.h"
#include "platform/DistributedNotifications.h"
#include "platform/FinderSync.h"
#include "platform/Panels.h"
#include "platform/Process.h"
#include "platform/RunLoop.h"
#include "platform/SystemLog.h"
#include "platform/UserScript.h"
#include "platform/Workspace.h"
#include "tests/support/CallLog.h"

#include <deque>
#include <map>
#include <set>
#include <utility>

namespace tarnwick::testing {

/// Keeps each chooser open until the test answers it, and answers each alert with the next of `answers`, the
/// first button when there is none. Logs "open panel", "save panel" and "alert MESSAGE".
class InMemoryPanels final : public Panels {
public:
    explicit InMemoryPanels(CallLog& log) : log_(log) {}
    std::vector<OpenPanelRequest> requests;
    std::vector<SavePanelRequest> saveRequests;
    std::vector<AlertRequest> alerts;
    std::deque<long> answers;

    long runAlert(const AlertRequest& request) override;
    void choose(
        const OpenPanelRequest& request, std::function<void(const OpenPanelAnswer&)> completion) override;
    void choosePlace(const SavePanelRequest& request,
        std::function<void(const std::optional<std::string>&)> completion) override;

    [[nodiscard]] bool isOpen() const { return !open_.empty(); }
    /// Closes the chooser that was opened first; a save panel is confirmed with one path.
    void confirm(std::vector<std::string> paths);
    void cancel();

private:
    void close(const OpenPanelAnswer& answer);
    CallLog& log_;
    std::deque<std::function<void(const OpenPanelAnswer&)>> open_;
};

/// Logs "open URL ADDRESS", "open file PATH", "show PATH", "launch PATH" and "terminate IDENTIFIER".
class InMemoryWorkspace final : public Workspace {
public:
    explicit InMemoryWorkspace(CallLog& log) : log_(log) {}
    std::map<std::string, std::string, std::less<>> applications;
    std::map<std::string, RegisteredApplications, std::less<>> registered;
    std::set<std::string, std::less<>> running;

    void openURL(std::string_view address) override { log_.add("open URL " + std::string(address)); }
    void openFile(const std::string& path) override { log_.add("open file " + path); }
    void showInFileViewer(const std::string& path) override { log_.add("show " + path); }
    void launchApplication(const std::string& path) override { log_.add("launch " + path); }
    std::optional<std::string> applicationPath(std::string_view bundleIdentifier) const override;
    RegisteredApplications registeredApplications(std::string_view bundleIdentifier) const override;
    bool isRunning(std::string_view bundleIdentifier) const override {
        return running.count(bundleIdentifier) != 0;
    }
    void terminateAll(std::string_view bundleIdentifier) override {
        log_.add("terminate " + std::string(bundleIdentifier));
    }

private:
    CallLog& log_;
};

/// Logs "ask whether the extension is enabled" and "show extension management".
class InMemoryFinderSync final : public FinderSync {
public:
    explicit InMemoryFinderSync(CallLog& log) : log_(log) {}
    bool enabled = true;
    bool isExtensionEnabled() const override;
    void showExtensionManagementInterface() override { log_.add("show extension management"); }

private:
    CallLog& log_;
};

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

/// Keeps what is posted until the test delivers it. Logs "post NAME OPTIONS" and "observe notification NAME".
class InMemoryNotifications final : public DistributedNotifications {
public:
    explicit InMemoryNotifications(CallLog& log) : log_(log) {}
    std::multimap<std::string, std::function<void()>, std::less<>> handlers;
    void deliver();
    void post(std::string_view name, std::uint32_t options) override;
    void observe(std::string_view name, std::function<void()> handler) override;

private:
    CallLog& log_;
    std::deque<std::string> posted_;
};

/// Keeps deferred work until the test runs it. Logs "schedule", "queue on main" and
/// "queue in background".
class InMemoryRunLoop final : public RunLoop {
public:
    explicit InMemoryRunLoop(CallLog& log) : log_(log) {}
    std::vector<double> delays;
    /// What the clock says.
    double time = 0;
    double now() const override { return time; }
    void performAfterDelay(double seconds, std::function<void()> work) override;
    void performOnMainQueue(std::function<void()> work) override;
    void performInBackground(std::function<void()> work) override;
    /// Runs what is waiting, in order, and what that queues in turn.
    void runMain();
    void runBackground();

private:
    CallLog& log_;
    std::deque<std::function<void()>> main_;
    std::deque<std::function<void()>> background_;
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

/// Stands still.
class InMemoryClock final : public Clock {
public:
    PlistDate time{700'000'000.5};
    std::string day = "2023-03-08";
    PlistDate now() const override { return time; }
    std::string today() const override { return day; }
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
