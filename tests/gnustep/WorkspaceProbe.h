#pragma once

#include <string>

/// Opening in other programs.
namespace tarnwick::probe {

/// From now on what is opened goes to the program at this path.
void useOpener(const std::string& path);
/// Whether something was started.
bool openFile(const std::string& path);
bool showInFileManager(const std::string& path);

} // namespace tarnwick::probe
