#pragma once

#include "prefs/FactoryTables.h"
#include "prefs/RuleCategory.h"
#include "prefs/RuleRecord.h"
#include "prefs/TemplateWork.h"

#include <optional>
#include <string_view>
#include <vector>

namespace tarnwick {

class Images;
class KnownFolders;
class LocalPreferences;
class RuleList;
class RuleLists;
class RulePublisher;
class SystemLog;
class TemplateFiles;

/// Puts a list back to its factory state.
class FactoryLists {
public:
    FactoryLists(Images& images, const KnownFolders& folders, SystemLog& log, LocalPreferences& local,
        RuleLists& lists, RulePublisher& publisher, TemplateFiles& templateFiles)
        : images_(images), folders_(folders), log_(log), local_(local), lists_(lists), publisher_(publisher),
          templateFiles_(templateFiles) {}

    /// Order: list, store, synchronise; for CreateNewFile then the publication of the whole list, disabled
    /// records included, and the template folder, removed and laid out anew. The caller publishes the enabled
    /// records and reloads the table. A category without factory list is left alone; a list that cannot be
    /// built, because an image of the application's resources is missing, stays as it was, with a log line.
    /// Gives the work that brings the template files of before back, none when list and files were the
    /// factory's already; nothing when no work does, because the folder could not be held.
    std::optional<TemplateWork> reset(RuleCategory category);

    /// Whether these are the templates that a reset gives.
    [[nodiscard]] static bool isFactoryTemplates(const RuleList& list);

    /// One factory record of the Others list; nothing, with a log line, when its image is missing.
    [[nodiscard]] std::optional<RuleRecord> makeOthersRecord(const FactoryAction& row);

private:
    [[nodiscard]] std::optional<std::vector<RuleRecord>> build(RuleCategory category);
    [[nodiscard]] std::vector<RuleRecord> buildTargets() const;
    [[nodiscard]] std::optional<std::vector<RuleRecord>> buildIcons();
    [[nodiscard]] std::optional<std::vector<RuleRecord>> buildOthers();
    [[nodiscard]] PlistData imageData(std::string_view name);

    Images& images_;
    const KnownFolders& folders_;
    SystemLog& log_;
    LocalPreferences& local_;
    RuleLists& lists_;
    RulePublisher& publisher_;
    TemplateFiles& templateFiles_;
};

} // namespace tarnwick
