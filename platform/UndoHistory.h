#pragma once

#include <functional>
#include <string_view>

namespace tarnwick {

/// The steps that the user can take back, the last one first, and those that can be repeated after that.
/// Implementations: Foundation undo manager, in memory.
class UndoHistory {
public:
    virtual ~UndoHistory() = default;
    /// One step, named in the user's words. While a step is being taken back or repeated, this is what leads
    /// back from there; at any other time what could be repeated until now is forgotten.
    virtual void registerUndo(std::string_view name, std::function<void()> takeBack) = 0;
    /// Nothing can be taken back or repeated any more. While a step is being taken back: once it is over.
    virtual void clear() = 0;
};

} // namespace tarnwick
