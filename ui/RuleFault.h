#pragma once

#include "values/EnumTable.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace tarnwick {

class ApplicationBundle;

/// What keeps a rule from doing its work.
enum class RuleFault {
    none,
    folderMissing,
    notAFolder,
    /// A target for which no folder has been chosen yet.
    folderUndefined,
    templateMissing,
    pictureUnreadable
};

inline constexpr std::array allRuleFaults{RuleFault::none, RuleFault::folderMissing, RuleFault::notAFolder,
    RuleFault::folderUndefined, RuleFault::templateMissing, RuleFault::pictureUnreadable};

template <typename Value>
using PerFault = EnumTable<RuleFault, allRuleFaults.size(), Value>;

/// How many rules of a list have which fault.
using FaultCounts = PerFault<std::size_t>;

/// What is wrong and what to do about it, as a key of the localisation table; empty for `none`.
[[nodiscard]] std::string_view explanationOf(RuleFault fault);

/// How many rules something is wrong with, in a sentence; empty when nothing is.
[[nodiscard]] std::string summaryOf(const FaultCounts& counts, const ApplicationBundle& bundle);

} // namespace tarnwick
