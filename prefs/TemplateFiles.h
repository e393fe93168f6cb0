#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace tarnwick {

class ApplicationBundle;
class FileManager;
class KnownFolders;
class LocalPreferences;
class RuleList;
class SystemLog;

/// What happens to template files beside a change of their list. Names are those of files in the template
/// folder.
struct TemplatesCopied {
    std::vector<std::string> names;
};
struct TemplateMoved {
    std::string from;
    std::string to;
};
struct TemplateRemoved {
    std::string name;
};
/// The whole folder, with the files of the factory list.
struct TemplatesLaidOut {};

/// Nothing in it: the change touches no file.
using TemplateWork =
    std::variant<std::monostate, TemplatesCopied, TemplateMoved, TemplateRemoved, TemplatesLaidOut>;

/// The files of CreateNewFile records in the template folder. Failures are not examined. A file name that
/// leads out of the folder or names a folder (one with a slash, "." and "..") is refused.
///
/// What is about to happen to a file is noted in `LocalPreferences` under "pendingTemplateFiles" before the
/// changed list is stored, so that one write brings both to the disk, and the note is removed once it has
/// happened. A program that ends in between leaves the note, and its next start finishes the work.
class TemplateFiles {
public:
    TemplateFiles(FileManager& files, const KnownFolders& folders, const ApplicationBundle& bundle,
        SystemLog& log, LocalPreferences& local)
        : files_(files), folders_(folders), bundle_(bundle), log_(log), local_(local) {}

    /// Before the changed list is stored: notes the work.
    void begin(const TemplateWork& work);
    /// Once the list is stored: does the work, but for copies, which come ahead of it, and forgets the note.
    void finish(const TemplateWork& work, const RuleList& templates);

    /// The work of copying these files in, without those that are there already. It is noted and synchronised
    /// at once, when there is any, because the copies come ahead of the list.
    [[nodiscard]] TemplateWork beginCopying(const std::vector<std::string>& paths);
    /// Whether the file now lies in the folder, under its own name; never overwrites.
    [[nodiscard]] bool copy(const std::string& path);

    /// At a start: does what an earlier process has noted and not got round to, as far as `templates`, the
    /// stored list, says that the change took place, with a log line for each file. The folder is laid out
    /// again only for a list that `isFactory`. Forgets the note; keeps it while there is no container.
    void recover(const RuleList& templates, bool (*isFactory)(const RuleList&));

private:
    void move(const TemplateMoved& moved);
    void remove(const TemplateRemoved& removed);
    void layOut(const RuleList& templates);
    void forget();
    void log(std::string_view name, std::string_view what);
    void removeStranger(const std::string& name, const RuleList& templates);

    FileManager& files_;
    const KnownFolders& folders_;
    const ApplicationBundle& bundle_;
    SystemLog& log_;
    LocalPreferences& local_;
};

} // namespace tarnwick
