#pragma once

#include "prefs/RuleCategory.h"
#include "transfer/ImportPlan.h"

#include <cstddef>
#include <string>

namespace tarnwick {

class ApplicationBundle;

/// What a user is told before settings are imported: how many rules of each page are replaced by how many,
/// what looks odd, what is refilled by the next start, what is left out and why. `present` are the numbers of
/// rules that there are now.
[[nodiscard]] std::string importSummary(
    const ImportPlan& plan, const PerCategory<std::size_t>& present, const ApplicationBundle& bundle);

/// Why nothing was imported.
[[nodiscard]] std::string faultText(ImportFault fault, const ApplicationBundle& bundle);

} // namespace tarnwick
