#pragma once

#include "prefs/RuleCategory.h"

namespace tarnwick::testing {

inline constexpr auto templates = RuleCategory::createNewFile;
inline constexpr auto targets = RuleCategory::copyFilesTo;
inline constexpr auto folders = RuleCategory::commonPath;
inline constexpr auto icons = RuleCategory::customIcon;
inline constexpr auto others = RuleCategory::others;

} // namespace tarnwick::testing
