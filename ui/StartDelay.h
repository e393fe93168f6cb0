#pragma once

namespace tarnwick {

/// What follows the loading of the window is put off for so many seconds: until the event loop is running.
inline constexpr double startDelaySeconds = 0.01;

} // namespace tarnwick
