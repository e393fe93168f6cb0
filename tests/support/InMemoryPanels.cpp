#include "tests/support/InMemoryPanels.h"

#include <utility>

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

} // namespace tarnwick::testing
