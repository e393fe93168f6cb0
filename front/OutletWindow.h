#pragma once

#import <AppKit/AppKit.h>

#include "ui/SettingsWindow.h"

@class SettingsViewController;

namespace tarnwick {

/// The settings window through the outlets of its controller, which it does not keep alive.
class OutletWindow final : public SettingsWindow {
public:
    explicit OutletWindow(SettingsViewController *controller) : controller_(controller) {}

    void endEditing() override;
    void reload(RuleCategory category) override;
    [[nodiscard]] long selectedRow(RuleCategory category) const override;
    [[nodiscard]] long numberOfRows(RuleCategory category) const override;
    void selectRow(RuleCategory category, long row) override;
    void scrollToRow(RuleCategory category, long row) override;
    void deselectAll(RuleCategory category) override;
    [[nodiscard]] bool removeButtonIsEnabled(RuleCategory category) const override;
    void setRemoveButtonEnabled(RuleCategory category, bool enabled) override;

    [[nodiscard]] RowRange rowsInSight(RuleCategory category) const override;
    void showFaults(RuleCategory category, std::string_view summary) override;

    void showNotices(const std::vector<Notice> &notices) override;
    void setSwitchForced(std::string_view key, bool forced) override;

    void showVersion(std::string_view text) override;
    /// The keyboard goes to the page's table.
    void showPage(Page page) override;
    void setPageButtonBackground(Page page, const Colour &colour) override;
    void editSelectedRow(RuleCategory category, std::string_view column) override;
    void hideRestartButton() override;
    void setHelpTitleColour(const Colour &colour) override;
    void setUpDragging(RuleCategory category, DragOperations outside, DragOperations inside,
        std::string_view draggedType) override;
    void observeSwitches(std::span<const std::string_view> keys) override;
    void observeApplicationChanges() override;

private:
    [[nodiscard]] NSTableView *table(RuleCategory category) const;
    [[nodiscard]] NSTableView *editedTable() const;

    SettingsViewController *controller_;
};

} // namespace tarnwick
