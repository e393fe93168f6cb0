#pragma once

#include "prefs/RuleRecord.h"

#include <string_view>

namespace tarnwick {

/// Whether a record comes from the factory list or from the user: "modified" is "0" or "1".
enum class RecordOrigin { factory, user };

/// CreateNewFile. `enable` is "1" or "0": here alone the flag starts as a string.
[[nodiscard]] RuleRecord makeTemplateRecord(
    std::string_view displayName, std::string_view extension, std::string_view enable, RecordOrigin origin);

/// CopyFilesTo and CommonPath, enabled.
[[nodiscard]] RuleRecord makeFolderRecord(std::string_view realPath, std::string_view displayName);

/// CustomIcon, enabled.
[[nodiscard]] RuleRecord makeIconRecord(PlistData tiff, std::string_view displayName, RecordOrigin origin);

/// Others, enabled, titled like its action; title and note are shown localised.
[[nodiscard]] RuleRecord makeActionRecord(PlistData tiff, std::string_view action, std::string_view note);

} // namespace tarnwick
