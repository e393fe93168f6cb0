#include "tests/support/InMemorySystem.h"

#include <tuple>

namespace tarnwick::testing {

class InMemoryUserScripts::Task final : public UserScriptTask {
public:
    explicit Task(InMemoryUserScripts& owner) : owner_(owner) {}
    void execute(const HandlerCallEvent& event) override {
        owner_.log_.add("execute " + event.parameterText);
        owner_.events.push_back(event);
    }

private:
    InMemoryUserScripts& owner_;
};

UserScriptTaskResult InMemoryUserScripts::makeTask(const std::string& path) {
    if (installed.count(path) == 0) {
        return {nullptr, error};
    }
    return {std::make_unique<Task>(*this), ""};
}

bool InMemoryProcess::isSystemAtLeast(int otherMajor, int otherMinor, int otherPatch) const {
    return std::tie(major, minor, patch) >= std::tie(otherMajor, otherMinor, otherPatch);
}

void InMemorySystemLog::write(std::string_view line) {
    log_.add("log " + std::string(line));
    lines.emplace_back(line);
}

PlistData InMemoryProcess::output(const std::string& launchPath, const std::vector<std::string>& arguments) {
    runs.emplace_back(launchPath, arguments);
    return PlistData({answer.begin(), answer.end()});
}

void InMemoryProcess::exit(int status) {
    log_.add("exit " + std::to_string(status));
    exits.push_back(status);
}

} // namespace tarnwick::testing
