#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

class RuleRecord;

/// Settings as one value, in a file of their own: a dictionary of
///
/// | key                     | holds                                                                    |
/// |-------------------------|--------------------------------------------------------------------------|
/// | application             | the application's identifier                                             |
/// | format                  | the integer `settingsFormat`                                             |
/// | version, date           | of the program that wrote it, and when, to the second                    |
/// | arrOfCreateNewFile, ... | each list as it is stored; one that is not stored is not there           |
/// | switches                | a dictionary of the option switches that are stored, each as it is       |
/// | templateFiles           | the files of the templates and their icons, by name: bytes, or for a     |
/// |                         | package a dictionary of what it holds                                    |
///
/// It holds what the user decided and nothing else: no remembered folders, nothing that was kept aside
/// because it could not be read, nothing of the suite.
namespace document {
inline constexpr std::string_view application = "application";
inline constexpr std::string_view format = "format";
inline constexpr std::string_view version = "version";
inline constexpr std::string_view date = "date";
inline constexpr std::string_view switches = "switches";
inline constexpr std::string_view templateFiles = "templateFiles";
} // namespace document

inline constexpr std::int64_t settingsFormat = 1;

/// The switches that settings consist of: those that get a first value, and the one that never does.
[[nodiscard]] std::vector<std::string_view> optionSwitches();

/// The names under which files of a template record lie in the template folder: its own, which without an
/// extension is one of two, and last its icon's.
[[nodiscard]] std::vector<std::string> templateFilesOf(const RuleRecord& record);

} // namespace tarnwick
