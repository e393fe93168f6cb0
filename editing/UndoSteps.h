#pragma once

#include "editing/UndoPart.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

class UndoHistory;

/// Collects what takes changes back into steps of the user's: each change by itself, or several together.
class UndoSteps {
public:
    explicit UndoSteps(UndoHistory& history) : history_(history) {}

    /// A change has taken place.
    void record(std::string_view name, std::shared_ptr<UndoPart> part);
    /// The same of something that is in no list.
    void record(std::string_view name, std::function<void()> takeBack);
    /// A change has taken place that nothing takes back, and so no step is made of it. Earlier steps still go
    /// back to what was before them, but for what was lost; those of which nothing is left are forgotten.
    void recordFinal(std::shared_ptr<UndoPart> part);

    /// While it lives, all that is recorded is one step of its name, taken back in reverse order. Within
    /// another group it adds to that. With a final change in it, all of it is final.
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
        std::vector<std::shared_ptr<UndoPart>> parts_;
        bool isFinal_ = false;
    };

private:
    enum class Direction { forth, back, forthAgain };
    struct Step {
        std::string name;
        std::vector<std::shared_ptr<UndoPart>> parts;
    };

    void add(const std::shared_ptr<Step>& step);
    void takeBack(const std::shared_ptr<Step>& step);
    void fitEarlierSteps(const std::vector<std::shared_ptr<UndoPart>>& final);
    void registerAnew();
    [[nodiscard]] std::function<void()> takingBack(std::shared_ptr<Step> step);

    UndoHistory& history_;
    Group* open_ = nullptr;
    Direction direction_ = Direction::forth;
    /// Those that can be taken back, the next one last; the history owns them.
    std::vector<std::weak_ptr<Step>> earlier_;
};

} // namespace tarnwick
