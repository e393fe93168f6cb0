#include "tests/support/InMemorySystem.h"

#include <algorithm>
#include <tuple>

namespace tarnwick::testing {

void InMemoryPanels::choose(
    const OpenPanelRequest& request, std::function<void(const OpenPanelAnswer&)> completion) {
    log_.add("open panel");
    requests.push_back(request);
    open_.push_back(std::move(completion));
}

void InMemoryPanels::choosePlace(
    const SavePanelRequest& request, std::function<void(const std::optional<std::string>&)> completion) {
    log_.add("save panel");
    saveRequests.push_back(request);
    open_.push_back([completion = std::move(completion)](const OpenPanelAnswer& answer) {
        completion(answer.confirmed ? std::optional(answer.paths.at(0)) : std::nullopt);
    });
}

void InMemoryPanels::confirm(std::vector<std::string> paths) {
    close({true, std::move(paths)});
}

void InMemoryPanels::cancel() {
    close({});
}

void InMemoryPanels::close(const OpenPanelAnswer& answer) {
    const auto completion = std::move(open_.front());
    open_.pop_front();
    completion(answer);
}

long InMemoryPanels::runAlert(const AlertRequest& request) {
    log_.add("alert " + request.messageText);
    alerts.push_back(request);
    if (answers.empty()) {
        return alertFirstButton;
    }
    const auto answer = answers.front();
    answers.pop_front();
    return answer;
}

std::optional<std::string> InMemoryWorkspace::applicationPath(std::string_view bundleIdentifier) const {
    const auto found = applications.find(bundleIdentifier);
    return found == applications.end() ? std::nullopt : std::optional(found->second);
}

RegisteredApplications InMemoryWorkspace::registeredApplications(std::string_view bundleIdentifier) const {
    const auto found = registered.find(bundleIdentifier);
    return found == registered.end() ? RegisteredApplications{} : found->second;
}

bool InMemoryFinderSync::isExtensionEnabled() const {
    log_.add("ask whether the extension is enabled");
    return enabled;
}

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

void InMemoryNotifications::post(std::string_view name, std::uint32_t options) {
    log_.add("post " + std::string(name) + " " + std::to_string(options));
    posted_.emplace_back(name);
}

void InMemoryNotifications::observe(std::string_view name, std::function<void()> handler) {
    log_.add("observe notification " + std::string(name));
    handlers.emplace(name, std::move(handler));
}

void InMemoryNotifications::deliver() {
    while (!posted_.empty()) {
        const auto [begin, end] = handlers.equal_range(posted_.front());
        posted_.pop_front();
        std::for_each(begin, end, [](const auto& entry) { entry.second(); });
    }
}

void InMemoryRunLoop::performAfterDelay(double seconds, std::function<void()> work) {
    log_.add("schedule");
    delays.push_back(seconds);
    main_.push_back(std::move(work));
}

void InMemoryRunLoop::performOnMainQueue(std::function<void()> work) {
    log_.add("queue on main");
    main_.push_back(std::move(work));
}

void InMemoryRunLoop::performInBackground(std::function<void()> work) {
    log_.add("queue in background");
    background_.push_back(std::move(work));
}

namespace {

void drain(std::deque<std::function<void()>>& queue) {
    while (!queue.empty()) {
        const auto work = std::move(queue.front());
        queue.pop_front();
        work();
    }
}

} // namespace

void InMemoryRunLoop::runMain() {
    drain(main_);
}

void InMemoryRunLoop::runBackground() {
    drain(background_);
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
