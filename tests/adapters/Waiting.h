#pragma once

#include <functional>
#include <string>

/// What the tests of the adapters do with the platform themselves.
namespace tarnwick::testing {

/// Lets the main thread's run loop work until the condition holds; false when ten seconds have passed
/// without.
bool runLoopUntil(const std::function<bool()>& condition);
[[nodiscard]] bool isMainThread();
/// What the process writes to its standard error while `work` runs.
[[nodiscard]] std::string standardErrorOf(const std::function<void()>& work);
/// All bytes of a file; none when there is no such file.
[[nodiscard]] std::string contentsOfFile(const std::string& path);
/// The bytes of a picture of this size, all of one colour.
[[nodiscard]] std::string pictureOfSize(int width, int height);

} // namespace tarnwick::testing
