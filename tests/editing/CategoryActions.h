#pragma once

#include "ui/SettingsViewController.h"

#include <array>

namespace tarnwick::testing {

/// What the controls of each page ask of the controller, by category; null where a page lacks the control.
using CategoryAction = void (SettingsViewController::*)();

inline constexpr std::array<CategoryAction, 5> removeActions{&SettingsViewController::removeCreateNewFileRule,
    &SettingsViewController::removeCopyFilesToRule, &SettingsViewController::removeCommondPathRule,
    &SettingsViewController::removeCustomIconRule, &SettingsViewController::removeOthersRule};
inline constexpr std::array<CategoryAction, 5> resetActions{&SettingsViewController::resetCreateNewFileRule,
    &SettingsViewController::resetCopyFilesToRule, nullptr, &SettingsViewController::resetCustomIconRule,
    &SettingsViewController::resetOthersRule};
inline constexpr std::array<CategoryAction, 5> enableAllActions{
    &SettingsViewController::enableAllOfCreateNewFilesClick, nullptr, nullptr,
    &SettingsViewController::enableAllOfCustomIconClick, &SettingsViewController::enableAllOfOthersClick};

/// The identifier of the field with a row's name, and the mark that an edit of it sets; empty: none.
inline constexpr std::array<const char*, 5> nameFields{
    "NewFileDisplayName", "Note", "commonPathDisplayName", "CustomIconName", "OthersDisplayName"};
inline constexpr std::array<const char*, 5> nameMarks{"modified", "", "", "modified", "nameModified"};

} // namespace tarnwick::testing
