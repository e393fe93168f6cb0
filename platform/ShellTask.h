#pragma once

#include "values/PlistValue.h"

#include <string>
#include <vector>

namespace tarnwick {

/// Runs other programs. Implementations: Foundation task, in memory.
class ShellTask {
public:
    virtual ~ShellTask() = default;
    /// Runs the program with its standard output on a pipe, blocks until that is closed and gives what was
    /// written; standard input and standard error stay the application's. The exit status is not awaited.
    [[nodiscard]] virtual PlistData output(
        const std::string& launchPath, const std::vector<std::string>& arguments) = 0;
};

} // namespace tarnwick
