#pragma once

#include "prefs/TemplateWork.h"

#include <optional>
#include <string>
#include <vector>

namespace tarnwick {

class FileContents;
class FileManager;
class HeldFiles;
class LocalPreferences;
class RuleList;
class RuleRecord;
class SystemLog;
class TemplateFolder;
struct TemplateNote;

/// The files of CreateNewFile records in the template folder. Failures are not examined. A file name that
/// leads out of the folder is refused.
///
/// What is about to happen to a file is noted in `LocalPreferences` under "pendingTemplateFiles" before the
/// changed list is stored, so that one write brings both to the disk, and the note is removed once it has
/// happened. A program that ends in between leaves the note, and its next start finishes the work
/// (`TemplateRecovery`). See `TemplateNote` for its form.
class TemplateFiles {
public:
    TemplateFiles(FileManager& files, const FileContents& contents, TemplateFolder& folder,
        LocalPreferences& local, HeldFiles& held, SystemLog& log)
        : files_(files), contents_(contents), folder_(folder), local_(local), held_(held), log_(log) {}

    /// Where the record's file is; nothing when there is none.
    [[nodiscard]] std::optional<std::string> file(const RuleRecord& record) const;

    /// Before the changed list is stored: notes the work.
    void begin(const TemplateWork& work, const RuleList& changed);
    /// Once the list is stored: does the work, but for copies, which come ahead of it, and forgets the note.
    /// Gives the work that leads back, of what succeeded alone; nothing when a file went that could not be
    /// held, so that no work does.
    std::optional<TemplateWork> finish(const TemplateWork& work, const RuleList& templates);

    /// The same work, but none when it would bring a folder back whose files are equal to those that are
    /// there; they are held no longer then.
    [[nodiscard]] TemplateWork unlessEqual(const TemplateWork& back);

    /// The work of copying these files in, without those that are there already. It is noted and synchronised
    /// at once, when there is any, because the copies come ahead of the list.
    [[nodiscard]] TemplateWork beginCopying(const std::vector<std::string>& paths);
    /// Whether the file now lies in the folder, under its own name; never overwrites.
    [[nodiscard]] bool copy(const std::string& path);

private:
    void note(const TemplateNote& note);
    [[nodiscard]] TemplateWork whatWasCopied(const TemplatesCopied& copied) const;
    TemplateWork move(const TemplateMoved& moved);
    std::optional<TemplateWork> remove(const TemplatesRemoved& removed);
    TemplateWork putBack(const TemplatesPutBack& held);
    std::optional<TemplateWork> layOutAnew(const RuleList& templates);
    std::optional<TemplateWork> putFolderBack(const TemplateFolderPutBack& held);
    /// The work that leads back, also when there is no folder; nothing when it could not be held and is gone.
    std::optional<TemplateWork> takeFolder(const std::string& folder);
    /// Forgets the note, on the disk too, then what is left at these places.
    void settle(const std::vector<std::string>& places);
    void logLoss();

    FileManager& files_;
    const FileContents& contents_;
    TemplateFolder& folder_;
    LocalPreferences& local_;
    HeldFiles& held_;
    SystemLog& log_;
};

} // namespace tarnwick
