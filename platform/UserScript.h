#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>

namespace tarnwick {

/// A four-character code as the wire has it.
using FourCharacterCode = std::uint32_t;

/// An Apple event that calls one handler of a script: everything that goes on the wire.
struct HandlerCallEvent {
    FourCharacterCode eventClass = 0;
    FourCharacterCode eventIdentifier = 0;
    FourCharacterCode targetType = 0;
    /// The bytes of the target descriptor in memory order.
    std::array<std::uint8_t, 8> targetBytes{};
    std::int16_t returnIdentifier = 0;
    std::int32_t transactionIdentifier = 0;
    /// The only parameter: its keyword and its text, the handler's name.
    FourCharacterCode parameterKeyword = 0;
    std::string parameterText;

    bool operator==(const HandlerCallEvent&) const = default;
};

/// An installed user script, ready to run.
class UserScriptTask {
public:
    virtual ~UserScriptTask() = default;
    /// Runs a handler and returns at once; result and errors are dropped. The handler finds every setting of
    /// this program on disk that was set before.
    virtual void execute(const HandlerCallEvent& event) = 0;
};

/// A task, or why there is none.
struct UserScriptTaskResult {
    std::unique_ptr<UserScriptTask> task;
    /// The platform's description of the failure; empty when there is a task.
    std::string error;
};

/// Makes tasks for scripts in the Application Scripts folder.
/// Implementations: macOS AppleScript task, Linux shell script, in memory.
class UserScripts {
public:
    virtual ~UserScripts() = default;
    [[nodiscard]] virtual UserScriptTaskResult makeTask(const std::string& path) = 0;
};

} // namespace tarnwick
