#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

class FileManager;
class HeldFiles;
class LocalPreferences;
class RuleList;
class SystemLog;
class TemplateFolder;

/// Finishes at a start what a process that is gone has noted of its work on template files and not got round
/// to; see `TemplateFiles`. The stored list says whether the change took place. A log line for each file.
class TemplateRecovery {
public:
    TemplateRecovery(
        FileManager& files, TemplateFolder& folder, LocalPreferences& local, HeldFiles& held, SystemLog& log)
        : files_(files), folder_(folder), local_(local), held_(held), log_(log) {}

    /// Ahead of all that looks at the folder: puts back from `HeldFiles` what an earlier process was about
    /// to; then removes what else processes held that are gone. Without a container, all of it stays.
    void recoverHeld(const RuleList& templates);
    /// Once the list is loaded: does what else is noted. The folder is laid out again only for a list that
    /// `isFactory`. Forgets the note; keeps it while there is no container.
    void recover(const RuleList& templates, bool (*isFactory)(const RuleList&));

private:
    /// False when nothing is held there.
    bool replaceFromHeld(const std::string& place, const std::string& path);
    void removeStrangers(const std::vector<std::string>& names, const RuleList& templates);
    void log(std::string_view name, std::string_view what);

    FileManager& files_;
    TemplateFolder& folder_;
    LocalPreferences& local_;
    HeldFiles& held_;
    SystemLog& log_;
};

} // namespace tarnwick
