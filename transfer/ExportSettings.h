#pragma once

#include "values/PlistValue.h"

#include <string>
#include <vector>

namespace tarnwick {

class ApplicationBundle;
class FileContents;
class FileManager;
class KnownFolders;
class LocalPreferences;
class RunLoop;

struct ExportedSettings {
    /// See SettingsDocument.h.
    PlistValue document;
    /// Template files that are there and cannot be read whole.
    std::vector<std::string> leftOut;
};

/// Puts the settings together as they are stored. Changes nothing.
class ExportSettings {
public:
    ExportSettings(const LocalPreferences& local, const FileManager& files, const FileContents& contents,
        const KnownFolders& folders, const ApplicationBundle& bundle, const RunLoop& clock)
        : local_(local), files_(files), contents_(contents), folders_(folders), bundle_(bundle),
          clock_(clock) {}

    [[nodiscard]] ExportedSettings collect() const;

private:
    void addLists(PlistDictionary& document) const;
    [[nodiscard]] PlistDictionary switches() const;
    [[nodiscard]] PlistDictionary templateFiles(std::vector<std::string>& leftOut) const;

    const LocalPreferences& local_;
    const FileManager& files_;
    const FileContents& contents_;
    const KnownFolders& folders_;
    const ApplicationBundle& bundle_;
    const RunLoop& clock_;
};

} // namespace tarnwick
