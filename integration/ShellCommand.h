#pragma once

#include <optional>
#include <string>

namespace tarnwick {

class ShellTask;

/// Runs a command with /bin/sh -c, blocks until it closes its output, and gives that as text; nothing when it
/// is not valid UTF-8. A failing command still gives what it wrote.
[[nodiscard]] std::optional<std::string> runCommand(ShellTask& shell, const std::string& command);

} // namespace tarnwick
