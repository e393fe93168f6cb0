#pragma once

#include "platform/Platform.h"

#include <optional>
#include <string>

namespace tarnwick {

/// Accepts exactly one installed copy, in the system's applications folder, or none at all.
///
/// Gives nothing when the running copy is accepted, else the listing of the copies found: a line break, then
/// each counted path followed by two line breaks, in the platform's order.
[[nodiscard]] std::optional<std::string> findInstallConflict(const Platform& platform);

/// Whether the running copy is accepted. Otherwise shows the conflict and ends the process with status 0.
[[nodiscard]] bool runInstallGuard(const Platform& platform);

} // namespace tarnwick
