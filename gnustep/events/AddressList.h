#pragma once

#include <string>
#include <vector>

/// The paths in a list of addresses, which has one a line: those of this machine's files.
std::vector<std::string> TNPathsInAddresses(const std::string& addresses);
