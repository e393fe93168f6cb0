#pragma once

#include "values/PlistValue.h"

#include <optional>
#include <string>
#include <vector>

namespace tarnwick {

/// The names of all that a folder holds, sorted; nothing when it cannot be read.
[[nodiscard]] std::optional<std::vector<std::string>> namesInFolder(const std::string& path);

/// Files and folders as values, as `FileContents` has them.
[[nodiscard]] std::optional<PlistValue> readFileTree(const std::string& path);
[[nodiscard]] bool writeFileTree(const std::string& path, const PlistValue& tree);

} // namespace tarnwick
