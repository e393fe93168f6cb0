#pragma once

#include "platform/WindowControls.h"
#include "prefs/RuleCategory.h"

#include <array>
#include <cstddef>

namespace tarnwick {

/// The pages in the order of the tab view.
enum class Page { createNewFile, copyFilesTo, commonPath, customIcon, others, moreApps };
inline constexpr std::size_t pageCount = 6;

/// The window's controls as the core reaches them. A null pointer is a missing outlet: the steps that need it
/// do nothing. What is pointed to outlives the controller.
struct Outlets {
    LabelControl* version = nullptr;
    TabControl* tabView = nullptr;
    std::array<ButtonControl*, pageCount> pageButtons{};
    std::array<TableControl*, 5> tables{};
    std::array<ButtonControl*, 5> removeButtons{};
    RowEditing* rowEditing = nullptr;
    ButtonControl* restartFinderButton = nullptr;
    ButtonControl* helpButton = nullptr;

    [[nodiscard]] TableControl* table(RuleCategory category) const {
        return tables[static_cast<std::size_t>(category)];
    }
    [[nodiscard]] ButtonControl* removeButton(RuleCategory category) const {
        return removeButtons[static_cast<std::size_t>(category)];
    }
};

} // namespace tarnwick
