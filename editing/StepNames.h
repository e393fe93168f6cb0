#pragma once

#include "prefs/RuleCategory.h"

#include <cstddef>
#include <optional>
#include <string>

namespace tarnwick {

class RuleList;

/// The kinds of steps that the user can take back.
enum class StepKind {
    add,
    remove,
    reorder,
    rename,
    editNote,
    chooseFolder,
    turnOn,
    turnOff,
    showInMainMenu,
    hideFromMainMenu,
    enableAll,
    disableAll,
    reset,
    importSettings,
};

/// What a step is called. Implementations: the user's language, in memory.
class StepNames {
public:
    virtual ~StepNames() = default;
    /// `row` is that of the record concerned in `list`; nothing when it is no single one.
    [[nodiscard]] virtual std::string nameOf(
        StepKind kind, const RuleList& list, std::optional<std::size_t> row) const = 0;
};

} // namespace tarnwick
