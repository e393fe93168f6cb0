#pragma once

#include "prefs/RuleRecord.h"

#include <string>
#include <string_view>

namespace tarnwick {

/// The records of each category as they begin.

/// Whether a record comes from the factory list or from the user: "modified" is "0" or "1".
enum class RecordOrigin { factory, user };

/// CreateNewFile. `enable` is "1" or "0": here alone the flag starts as a string.
[[nodiscard]] inline RuleRecord makeTemplateRecord(
    std::string_view displayName, std::string_view extension, std::string_view enable, RecordOrigin origin) {
    return RuleRecord({{std::string(field::enable), enable}, {std::string(field::displayName), displayName},
        {std::string(field::extension), extension},
        {std::string(field::modified), origin == RecordOrigin::user ? "1" : "0"}});
}

/// CopyFilesTo and CommonPath, enabled.
[[nodiscard]] inline RuleRecord makeFolderRecord(std::string_view realPath, std::string_view displayName) {
    return RuleRecord({{std::string(field::enable), 1}, {std::string(field::realPath), realPath},
        {std::string(field::displayName), displayName}});
}

/// CustomIcon, enabled.
[[nodiscard]] inline RuleRecord makeIconRecord(
    PlistData tiff, std::string_view displayName, RecordOrigin origin) {
    return RuleRecord({{std::string(field::enable), 1}, {std::string(field::icon), std::move(tiff)},
        {std::string(field::displayName), displayName},
        {std::string(field::modified), origin == RecordOrigin::user ? "1" : "0"}});
}

/// Others, enabled, titled like its action; title and note are shown localised.
[[nodiscard]] inline RuleRecord makeActionRecord(
    PlistData tiff, std::string_view action, std::string_view note) {
    return RuleRecord({{std::string(field::enable), 1}, {std::string(field::icon), std::move(tiff)},
        {std::string(field::displayName), action}, {std::string(field::nameModified), "0"},
        {std::string(field::noteModified), "0"}, {std::string(field::action), action},
        {std::string(field::note), note}});
}

} // namespace tarnwick
