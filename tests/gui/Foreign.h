#pragma once

#include <optional>
#include <string>

/// What others find on disk: read by Python's property-list reader, which is not this project's.
namespace tarnwick::gui {

/// Evaluates a Python expression over a domain's file, in which `d` is its dictionary and `size` its bytes,
/// and gives the result as Python writes it: 1, True and '1' stay apart. "(no file)" while there is none.
[[nodiscard]] std::string local(const std::string& expression);
[[nodiscard]] std::string shared(const std::string& expression);
/// The names of a list's first rules, as Python writes them; of all where no number is given.
[[nodiscard]] std::string localNames(const std::string& list, std::optional<int> count = std::nullopt);
[[nodiscard]] std::string sharedNames(const std::string& list, std::optional<int> count = std::nullopt);
/// The names in a folder of the group container, sorted, as Python writes the list.
[[nodiscard]] std::string containerFolder(const std::string& relativePath);
/// Where the sandbox keeps the user's files.
[[nodiscard]] std::string sandboxFolder();

} // namespace tarnwick::gui
