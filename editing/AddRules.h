#pragma once

#include "platform/OpenPanel.h"
#include "platform/Platform.h"
#include "prefs/RuleCategory.h"
#include "prefs/TemplateFiles.h"

#include <optional>
#include <string>
#include <vector>

namespace tarnwick {

class LocalPreferences;
class RulePages;
class RuleRecord;

/// Adds rules from files or folders that the user chooses. An item that cannot become a record is skipped
/// without a message.
class AddRules {
public:
    AddRules(const Platform& platform, LocalPreferences& local, RulePages& pages)
        : platform_(platform), local_(local), templates_(platform, local), pages_(pages) {}

    /// Opens the category's chooser and returns; once it is confirmed, adds what was chosen. Order: the
    /// records, the remembered folder (not for Others), store, synchronise, reload, publish.
    void add(RuleCategory category);

    /// The same for paths that came some other way, without touching the remembered folder.
    void addPaths(RuleCategory category, const std::vector<std::string>& paths);

    /// How the category's chooser is set up just now.
    [[nodiscard]] OpenPanelRequest chooser(RuleCategory category) const;

private:
    void appendRecords(RuleCategory category, const std::vector<std::string>& paths);
    void commit(RuleCategory category);
    [[nodiscard]] std::optional<RuleRecord> makeRecord(RuleCategory category, const std::string& path);

    Platform platform_;
    LocalPreferences& local_;
    TemplateFiles templates_;
    RulePages& pages_;
};

} // namespace tarnwick
