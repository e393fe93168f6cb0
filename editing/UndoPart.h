#pragma once

#include "prefs/RuleCategory.h"
#include "prefs/RuleRecord.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace tarnwick {

/// A change of a list that nothing takes back, as the steps before it meet it on the way from the last of
/// them to the first.
struct FinalChange {
    RuleCategory category;
    /// The list as the step left it, and as it is instead.
    std::vector<RuleRecord> left;
    std::vector<RuleRecord> instead;
    /// The row of `left` that `instead` lacks; nothing: it is another list altogether.
    std::optional<std::size_t> missing;

    /// From here on the steps fit as they are.
    [[nodiscard]] bool isOver() const { return left == instead; }
};

/// What takes one change back.
class UndoPart {
public:
    virtual ~UndoPart() = default;
    /// Undoes the change, and records what undoes that in turn.
    virtual void takeBack() = 0;
    /// The step of this part cannot be taken back: adds what it changed to what is final.
    virtual void addTo(std::vector<FinalChange>& finals) const = 0;
    /// A later change is final: goes on to the state that this one leads back to, and fits the part to it.
    /// False when nothing of the part is left.
    [[nodiscard]] virtual bool fit(FinalChange& later) = 0;
};

} // namespace tarnwick
