#pragma once

#include "platform/Panels.h"
#include "tests/support/CallLog.h"

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

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

} // namespace tarnwick::testing
