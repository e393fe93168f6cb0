#pragma once

#import "front/SettingsViewController.h"

#include <functional>

namespace tarnwick::bench {

/// Runs the application itself, and `serve` in it, as `whenRunning` does.
void runApplication(
    int argc, char* argv[], const std::function<void(SettingsViewController* controller)>& serve);

} // namespace tarnwick::bench
