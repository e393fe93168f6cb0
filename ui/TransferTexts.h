#pragma once

#include "prefs/RuleCategory.h"
#include "transfer/ImportPlan.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tarnwick {

class ApplicationBundle;

/// What a user is told before settings are imported: how many rules of each page are replaced by how many,
/// what looks odd, what is refilled by the next start, what is left out and why. `present` are the numbers of
/// rules that there are now.
[[nodiscard]] std::string importSummary(
    const ImportPlan& plan, const PerCategory<std::size_t>& present, const ApplicationBundle& bundle);

/// The names of files that could not be exported, as many as an alert has room for.
[[nodiscard]] std::string leftOutFiles(
    const std::vector<std::string>& names, const ApplicationBundle& bundle);

/// Why nothing was imported.
[[nodiscard]] std::string faultText(ImportFault fault, const ApplicationBundle& bundle);

} // namespace tarnwick
