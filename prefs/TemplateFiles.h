#pragma once

#include "prefs/TemplateWork.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

class ApplicationBundle;
class FileManager;
class HeldFiles;
class KnownFolders;
class LocalPreferences;
class RuleList;
class RuleRecord;
class SystemLog;
struct TemplateNote;

/// The files of CreateNewFile records in the template folder. Failures are not examined. A file name that
/// leads out of the folder or names a folder (one with a slash, "." and "..") is refused.
///
/// What is about to happen to a file is noted in `LocalPreferences` under "pendingTemplateFiles" before the
/// changed list is stored, so that one write brings both to the disk, and the note is removed once it has
/// happened. A program that ends in between leaves the note, and its next start finishes the work. See
/// `TemplateNote` for its form.
class TemplateFiles {
public:
    TemplateFiles(FileManager& files, const KnownFolders& folders, const ApplicationBundle& bundle,
        SystemLog& log, LocalPreferences& local, HeldFiles& held)
        : files_(files), folders_(folders), bundle_(bundle), log_(log), local_(local), held_(held) {}

    /// Where the record's file is; nothing when there is none.
    [[nodiscard]] std::optional<std::string> file(const RuleRecord& record) const;

    /// Before the changed list is stored: notes the work.
    void begin(const TemplateWork& work, const RuleList& changed);
    /// Once the list is stored: does the work, but for copies, which come ahead of it, and forgets the note.
    /// Gives the work that leads back, of what succeeded alone; nothing when a file went that could not be
    /// held, so that no work does.
    std::optional<TemplateWork> finish(const TemplateWork& work, const RuleList& templates);

    /// The work of copying these files in, without those that are there already. It is noted and synchronised
    /// at once, when there is any, because the copies come ahead of the list.
    [[nodiscard]] TemplateWork beginCopying(const std::vector<std::string>& paths);
    /// Whether the file now lies in the folder, under its own name; never overwrites.
    [[nodiscard]] bool copy(const std::string& path);

    /// At a start, ahead of all that looks at the folder: puts back from `HeldFiles` what an earlier process
    /// was about to, as far as `templates`, the stored list, says that the change took place; then removes
    /// what else processes held that are gone. Without a container, all of it stays.
    void recoverHeld(const RuleList& templates);
    /// At a start: does what else an earlier process has noted and not got round to, by the same rule, with a
    /// log line for each file. The folder is laid out again only for a list that `isFactory`. Forgets the
    /// note; keeps it while there is no container.
    void recover(const RuleList& templates, bool (*isFactory)(const RuleList&));

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
    bool bringBack(const std::string& place, const std::string& path);
    /// Forgets the note, on the disk too, then what is left at these places.
    void settle(const std::vector<std::string>& places);
    void layOut(const std::string& folder, const RuleList& templates);
    /// For what an earlier process held; false when it holds nothing there.
    bool replaceFromHeld(const std::string& place, const std::string& path);
    void removeStrangers(const std::vector<std::string>& names, const RuleList& templates);
    void forget();
    void log(std::string_view name, std::string_view what);

    FileManager& files_;
    const KnownFolders& folders_;
    const ApplicationBundle& bundle_;
    SystemLog& log_;
    LocalPreferences& local_;
    HeldFiles& held_;
};

} // namespace tarnwick
