#pragma once

#import <AppKit/AppKit.h>

#include "platform/WindowControls.h"
#include "ui/Outlets.h"

#include <memory>
#include <vector>

namespace tarnwick {

/// The core's handles over AppKit controls. None keeps its control alive.
[[nodiscard]] std::unique_ptr<TableControl> makeTableControl(NSTableView* table);
[[nodiscard]] std::unique_ptr<ButtonControl> makeButtonControl(NSButton* button);
[[nodiscard]] std::unique_ptr<LabelControl> makeLabelControl(NSTextField* label);
[[nodiscard]] std::unique_ptr<TabControl> makeTabControl(NSTabView* tabView);
/// The window is that of the pages.
[[nodiscard]] std::unique_ptr<RowEditing> makeRowEditing(NSTabView* tabView);
[[nodiscard]] std::unique_ptr<WindowControl> makeWindowControl(NSWindow* window);

/// The handles of one window.
struct ControlAdapters {
    std::unique_ptr<LabelControl> version;
    std::unique_ptr<TabControl> tabView;
    std::vector<std::unique_ptr<ButtonControl>> pageButtons;
    std::vector<std::unique_ptr<TableControl>> tables;
    std::vector<std::unique_ptr<ButtonControl>> removeButtons;
    std::unique_ptr<RowEditing> rowEditing;
    std::unique_ptr<ButtonControl> restartFinderButton;
    std::unique_ptr<ButtonControl> helpButton;

    [[nodiscard]] Outlets outlets() const;
};

} // namespace tarnwick
