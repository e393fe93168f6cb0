#pragma once

#include "platform/Platform.h"
#include "prefs/FactoryTables.h"
#include "prefs/RuleCategory.h"
#include "prefs/RuleRecord.h"
#include "prefs/TemplateFiles.h"

#include <optional>
#include <string_view>
#include <vector>

namespace tarnwick {

class LocalPreferences;
class RuleLists;
class RulePublisher;

/// Puts a list back to its factory state, in memory and in `LocalPreferences`. The caller publishes the
/// enabled records and reloads the table. A list that cannot be built, because an image of the
/// application's resources is missing, is left as it was, in memory and in the store, with a log line.
class FactoryLists {
public:
    FactoryLists(
        const Platform& platform, LocalPreferences& local, RuleLists& lists, RulePublisher& publisher)
        : platform_(platform), local_(local), lists_(lists), publisher_(publisher),
          templateFiles_(platform, local) {}

    /// Stores and synchronises the fifteen templates, publishes them whole, disabled ones included, then
    /// removes the template folder and lays it out anew. Files that cannot be copied are left out.
    void resetArrOfCreateNewFile();
    /// At a start, once the templates are loaded: lays the folder out again when a reset was interrupted, and
    /// finishes any other change of template files that was.
    void finishTemplateFiles();
    void resetArrOfCopyFilesTo();
    void resetArrOfCustomIcon();
    void resetArrOfOthers();

    /// One factory record of the Others list; nothing, with a log line, when its image is missing.
    [[nodiscard]] std::optional<RuleRecord> makeOthersRecord(const FactoryAction& row);

private:
    void layOutTemplates();
    void commit(RuleCategory category, std::vector<RuleRecord> records);
    [[nodiscard]] PlistData imageData(std::string_view name);

    Platform platform_;
    LocalPreferences& local_;
    RuleLists& lists_;
    RulePublisher& publisher_;
    TemplateFiles templateFiles_;
};

} // namespace tarnwick
