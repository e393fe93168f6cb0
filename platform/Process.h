#pragma once

#include "values/PlistValue.h"

#include <string>
#include <vector>

namespace tarnwick {

/// The running process, the system below it, and the programs that it runs.
/// Implementations: Foundation process and tasks, in memory.
class Process {
public:
    virtual ~Process() = default;
    /// Ends the process with this status. Only the in-memory implementation returns.
    virtual void exit(int status) = 0;
    /// The number that the system knows this process by.
    [[nodiscard]] virtual int identifier() const = 0;
    /// Whether a process of this number is there, whoever's it is.
    [[nodiscard]] virtual bool isRunning(int identifier) const = 0;
    /// Whether macOS is at least of this version. Other systems count as the newest.
    [[nodiscard]] virtual bool isSystemAtLeast(int major, int minor, int patch) const = 0;
    /// Runs a program with its standard output on a pipe, blocks until that is closed and gives what was
    /// written; standard input and standard error stay the application's. The exit status is not awaited.
    [[nodiscard]] virtual PlistData output(
        const std::string& launchPath, const std::vector<std::string>& arguments) = 0;
};

} // namespace tarnwick
