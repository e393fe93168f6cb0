#pragma once

#include <string>

/// Files as the tests look at them.
namespace tarnwick::probe {

bool exists(const std::string& path);
std::string contentOf(const std::string& path);
void writeContent(const std::string& path, const std::string& content);
/// Writes the settings of all programs by which what starts up from now on is read from right to left.
void turnReadingDirection();
/// The standard output of a command that must succeed; the test fails otherwise.
std::string outputOf(const std::string& command);

} // namespace tarnwick::probe
