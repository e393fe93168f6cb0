#pragma once

#include "app/ApplicationWindow.h"
#include "tests/support/InMemoryPreferences.h"
#include "tests/support/InMemoryTables.h"
#include "ui/Colour.h"
#include "ui/SettingsWindow.h"

#include <optional>
#include <set>
#include <string>
#include <vector>

namespace tarnwick::testing {

/// The settings window. Beside what its tables log: "edit TABLE COLUMN", "observe KEY" and "observe
/// applications".
class InMemoryWindow final : public InMemoryTablesOf<SettingsWindow> {
public:
    struct DragSetUp {
        RuleCategory category;
        DragOperations outside;
        DragOperations inside;
        std::string type;
    };

    /// The controller that changes of `preferences` are told to once it observes them.
    InMemoryWindow(CallLog& log, InMemoryPreferences& preferences)
        : InMemoryTablesOf(log), preferences_(preferences) {}

    std::string version;
    std::optional<Page> page;
    PerPage<Colour> pageButtons = PerPage<Colour>::madeBy([](Page) { return Colour(); });
    bool restartButtonIsHidden = false;
    Colour helpTitle;
    std::vector<DragSetUp> drags;
    /// What is said below each table.
    PerCategory<std::string> faults = PerCategory<std::string>::madeBy([](RuleCategory) { return ""; });
    RowRange inSight{0, 3};

    void showVersion(std::string_view text) override { version = text; }
    void showPage(Page shown) override { page = shown; }
    void setPageButtonBackground(Page button, const Colour& colour) override { pageButtons[button] = colour; }
    void editSelectedRow(RuleCategory category, std::string_view column) override {
        log_.add("edit " + nameOf(category) + " " + std::string(column));
    }
    void hideRestartButton() override { restartButtonIsHidden = true; }
    void setHelpTitleColour(const Colour& colour) override { helpTitle = colour; }
    void setUpDragging(RuleCategory category, DragOperations outside, DragOperations inside,
        std::string_view draggedType) override {
        drags.push_back({category, outside, inside, std::string(draggedType)});
    }
    void observeSwitches(std::span<const std::string_view> keys) override {
        for (const auto& key : keys) {
            log_.add("observe " + std::string(key));
            preferences_.observedKeys.emplace(key);
        }
    }
    std::vector<Notice> notices;
    std::set<std::string, std::less<>> forcedSwitches;
    void showNotices(const std::vector<Notice>& shown) override { notices = shown; }
    void setSwitchForced(std::string_view key, bool forced) override {
        forcedSwitches.erase(std::string(key));
        if (forced) {
            forcedSwitches.emplace(key);
        }
    }
    RowRange rowsInSight(RuleCategory) const override { return inSight; }
    /// Logs "show faults TABLE".
    void showFaults(RuleCategory category, std::string_view summary) override {
        log_.add("show faults " + nameOf(category));
        faults[category] = summary;
    }
    void observeApplicationChanges() override { log_.add("observe applications"); }

private:
    InMemoryPreferences& preferences_;
};

/// Logs each call.
class InMemoryApplicationWindow final : public ApplicationWindow {
public:
    explicit InMemoryApplicationWindow(CallLog& log) : log_(log) {}
    Colour background;
    void setMovableByBackground(bool movable) override {
        log_.add(movable ? "movable by background" : "not movable by background");
    }
    void setBackground(const Colour& colour) override {
        log_.add("background");
        background = colour;
    }
    void setTextBackground() override { log_.add("text background"); }
    void activateApplication() override { log_.add("activate"); }

private:
    CallLog& log_;
};

} // namespace tarnwick::testing
