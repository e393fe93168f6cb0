#pragma once

#include "prefs/RuleCategory.h"

namespace tarnwick::testing {

/// The identifier of the field with a row's name, and the mark that an edit of it sets; empty: none.
inline constexpr PerCategory<const char*> nameFields(
    "NewFileDisplayName", "Note", "commonPathDisplayName", "CustomIconName", "OthersDisplayName");
inline constexpr PerCategory<const char*> nameMarks("modified", "", "", "modified", "nameModified");

/// Which pages have a switch in their rows, one above the table, and a button that resets the list.
inline constexpr PerCategory<bool> haveRowSwitches(true, true, false, true, true);
inline constexpr PerCategory<bool> haveEnableAll(true, false, false, true, true);
inline constexpr PerCategory<bool> haveReset(true, true, false, true, true);

} // namespace tarnwick::testing
