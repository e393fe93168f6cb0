#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

class UndoHistory;

/// Collects what takes changes back into steps of the user's: each change by itself, or several together.
class UndoSteps {
public:
    explicit UndoSteps(UndoHistory& history) : history_(history) {}

    /// A change has taken place. `takeBack` undoes it and records what undoes that in turn.
    void record(std::string_view name, std::function<void()> takeBack);
    /// A change has taken place that nothing takes back; what came before it does not fit any more either.
    void forgetAll();

    /// While it lives, all that is recorded is one step of its name, taken back in reverse order. Within
    /// another group it adds to that.
    class Group {
    public:
        Group(UndoSteps& steps, std::string name);
        ~Group();
        Group(const Group&) = delete;
        Group& operator=(const Group&) = delete;

    private:
        friend class UndoSteps;
        UndoSteps& steps_;
        std::string name_;
        std::vector<std::function<void()>> parts_;
        bool isLost_ = false;
    };

private:
    UndoHistory& history_;
    Group* open_ = nullptr;
};

} // namespace tarnwick
