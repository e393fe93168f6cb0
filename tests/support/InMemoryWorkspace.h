#pragma once

#include "platform/Workspace.h"
#include "tests/support/CallLog.h"

#include <map>
#include <set>
#include <string>

namespace tarnwick::testing {

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

} // namespace tarnwick::testing
