#pragma once

#include <string>
#include <vector>

namespace tarnwick::probe {

/// The languages in which texts are looked for, after a start-up in this process.
std::vector<std::string> languagesAfterStartUp();
std::vector<std::string> languagesForCode(const std::string& code);
/// The text "Hello" of a bundle that has one table for each of these languages, all of which say the
/// language.
std::string greetingFromTables(const std::vector<std::string>& tables);

} // namespace tarnwick::probe
