#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

/// The steps that the user can take back, the last one first, and those that can be repeated after that.
/// Implementations: Foundation undo manager, in memory.
class UndoHistory {
public:
    /// Named in the user's words.
    struct Step {
        std::string name;
        std::function<void()> takeBack;
    };

    virtual ~UndoHistory() = default;
    /// One step. While a step is being taken back or repeated, this is what leads back from there; at any
    /// other time what could be repeated until now is forgotten.
    virtual void registerUndo(std::string_view name, std::function<void()> takeBack) = 0;
    /// These steps, the next one last, and no others can be taken back from now on, and none repeated. While
    /// a step is being taken back or repeated: once it is over.
    virtual void replaceAll(std::vector<Step> steps) = 0;
};

} // namespace tarnwick
