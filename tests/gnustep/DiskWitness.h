#pragma once

#include <string>
#include <vector>

/// What this program asks of the disk from now on: "sync FILE" and "rename FILE to FILE", names without their
/// folders.
namespace tarnwick::probe {

void watchDisk();
const std::vector<std::string>& askedOfDisk();

} // namespace tarnwick::probe
