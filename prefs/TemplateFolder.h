#pragma once

#include <optional>
#include <string>

namespace tarnwick {

class ApplicationBundle;
class FileManager;
class KnownFolders;
class RuleList;
class SystemLog;

/// The folder that holds the files of CreateNewFile records, asked of the platform anew at each call.
class TemplateFolder {
public:
    TemplateFolder(
        FileManager& files, const KnownFolders& folders, const ApplicationBundle& bundle, SystemLog& log)
        : files_(files), folders_(folders), bundle_(bundle), log_(log) {}

    /// Nothing when the platform grants none.
    [[nodiscard]] std::optional<std::string> path() const;
    /// Of a file in it; nothing for a name that leads out of the folder or names a folder (one with a slash,
    /// "." and "..").
    [[nodiscard]] std::optional<std::string> pathOf(const std::string& name) const;

    /// Makes the folder with the application's own file and icon for each record. What cannot be copied is
    /// left out, with a log line; its record stays.
    void layOut(const RuleList& templates);
    /// From where it was held. A copy leaves what is held whole until nothing needs it any more.
    bool bringBack(const std::string& place, const std::string& path);

private:
    FileManager& files_;
    const KnownFolders& folders_;
    const ApplicationBundle& bundle_;
    SystemLog& log_;
};

} // namespace tarnwick
