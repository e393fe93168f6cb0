#pragma once

#include "platform/UndoHistory.h"

#include <memory>
#include <string>

namespace tarnwick::testing {

/// The history over Foundation's undo manager, and what the manager's menu items do.
class UndoProbe {
public:
    UndoProbe();
    ~UndoProbe();
    UndoProbe(const UndoProbe&) = delete;
    UndoProbe& operator=(const UndoProbe&) = delete;

    [[nodiscard]] UndoHistory& history();
    void undo();
    void redo();
    /// The names of the steps that come next; empty without one.
    [[nodiscard]] std::string undoName() const;
    [[nodiscard]] std::string redoName() const;

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace tarnwick::testing
