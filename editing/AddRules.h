#pragma once

#include "editing/DropFiles.h"
#include "platform/Panels.h"
#include "prefs/RuleCategory.h"
#include "prefs/TemplateFiles.h"

#include <optional>
#include <string>
#include <vector>

namespace tarnwick {

class ApplicationBundle;
class Images;
class KnownFolders;
class ListEditor;
class LocalPreferences;
class RuleRecord;
class RuleTables;

/// Adds rules from files or folders that the user chooses. An item that cannot become a record is skipped
/// without a message.
class AddRules {
public:
    AddRules(Panels& panels, Images& images, const KnownFolders& folders, const ApplicationBundle& bundle,
        LocalPreferences& local, TemplateFiles& templates, ListEditor& editor, RuleTables& tables)
        : panels_(panels), images_(images), folders_(folders), bundle_(bundle), local_(local),
          templates_(templates), editor_(editor), tables_(tables) {}

    /// Opens the category's chooser and returns; once it is confirmed, adds what was chosen. Order: the
    /// records, the remembered folder (not for Others), store, synchronise, reload, publish.
    /// The last new row is scrolled to, the selection stays.
    void add(RuleCategory category);

    /// Adds what the list takes of a drop, as if chosen, without touching the remembered folder; false when
    /// that is nothing.
    bool addDropped(RuleCategory category, const std::vector<DroppedItem>& items);

private:
    [[nodiscard]] OpenPanelRequest chooser(RuleCategory category) const;
    void append(RuleCategory category, std::vector<RuleRecord> records, const TemplateWork& files);
    /// What is copied in for the records, ahead of them.
    [[nodiscard]] TemplateWork beginCopying(RuleCategory category, const std::vector<std::string>& paths);
    [[nodiscard]] std::vector<RuleRecord> makeRecords(
        RuleCategory category, const std::vector<std::string>& paths);
    [[nodiscard]] std::optional<RuleRecord> makeRecord(RuleCategory category, const std::string& path);
    [[nodiscard]] std::optional<RuleRecord> makeTemplate(const std::string& path);
    [[nodiscard]] std::optional<RuleRecord> makeIcon(const std::string& path);
    [[nodiscard]] std::optional<RuleRecord> makeAction(const std::string& path);

    Panels& panels_;
    Images& images_;
    const KnownFolders& folders_;
    const ApplicationBundle& bundle_;
    LocalPreferences& local_;
    TemplateFiles& templates_;
    ListEditor& editor_;
    RuleTables& tables_;
};

} // namespace tarnwick
