#pragma once

#include "platform/Platform.h"

#include <string>
#include <vector>

namespace tarnwick {

class LocalPreferences;
class RuleList;
class RuleRecord;

/// The files of CreateNewFile records in the template folder. Failures are not examined. A file name that
/// leads out of the folder or names a folder (one with a slash, "." and "..") is refused.
///
/// What is about to happen to a file is noted in `LocalPreferences` under "pendingTemplateFiles" before the
/// changed list is stored, so that one write brings both to the disk, and the note is removed once it has
/// happened. A program that ends in between leaves the note, and its next start finishes the work.
class TemplateFiles {
public:
    TemplateFiles(const Platform& platform, LocalPreferences& local) : platform_(platform), local_(local) {}

    /// Before the list with the changed record is stored.
    void noteMove(const RuleRecord& old, const RuleRecord& changed);
    /// Gives the file the changed record's name; never overwrites. Then forgets the note.
    void move(const RuleRecord& old, const RuleRecord& changed);

    /// Before the list without the record is stored.
    void noteRemoval(const RuleRecord& record);
    /// Removes the record's file, then forgets the note.
    void remove(const RuleRecord& record);

    /// Before these files are copied in; synchronises when there is something to note, because the copies
    /// come ahead of the list.
    void noteCopies(const std::vector<std::string>& paths);
    /// Whether the file now lies in the folder, under its own name; never overwrites.
    [[nodiscard]] bool copy(const std::string& path);
    /// Once the list with their records is written, before it is synchronised.
    void forgetCopies() { forget(); }

    /// Before the factory list is stored whose files are laid out next.
    void noteLayout();
    void forgetLayout() { forget(); }
    [[nodiscard]] bool isLayoutPending() const;

    /// At a start: moves or removes what an earlier process has noted and not got round to, as far as
    /// `templates`, the stored list, says that the change took place, with a log line for each file. Forgets
    /// the note; keeps it while there is no container.
    void finish(const RuleList& templates);

private:
    void note(std::vector<std::string> words);
    void forget();

    Platform platform_;
    LocalPreferences& local_;
};

} // namespace tarnwick
