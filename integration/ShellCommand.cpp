#include "integration/ShellCommand.h"

#include "platform/ShellTask.h"
#include "values/Utf8.h"

namespace tarnwick {

std::optional<std::string> runCommand(ShellTask& shell, const std::string& command) {
    const auto output = shell.output("/bin/sh", {"-c", command});
    std::string text(output.bytes(), output.bytes() + output.size());
    return isValidUtf8(text) ? std::optional(std::move(text)) : std::nullopt;
}

} // namespace tarnwick
