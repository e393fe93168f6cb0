#pragma once

#include "prefs/TemplateWork.h"
#include "values/PlistValue.h"

#include <string>
#include <vector>

namespace tarnwick {

class LocalPreferences;
class RuleList;

/// What `LocalPreferences` holds under "pendingTemplateFiles" while work on template files is under way: an
/// array of strings, first the kind of work.
///
/// | words                                   | work                                                        |
/// |-----------------------------------------|-------------------------------------------------------------|
/// | "copy", file name ...                   | `TemplatesCopied`                                           |
/// | "move", old name, new name              | `TemplateMoved`                                             |
/// | "remove", file name ...                 | `TemplatesRemoved`                                          |
/// | "put back", file name, its place ...    | `TemplatesPutBack`                                          |
/// | "lay out"                               | `TemplatesLaidOut`                                          |
/// | "put back folder", place, digest        | `TemplateFolderPutBack`, and the digest of the changed list |
struct TemplateNote {
    TemplateWork work;
    /// Of a folder alone: the digest of the list that it belongs to.
    std::string owner;

    TemplateNote() = default;
    /// `changed` is the list as the work leaves it.
    TemplateNote(TemplateWork noted, const RuleList& changed);
    /// From a stored value; no work when it is none of ours.
    explicit TemplateNote(const PlistValue& stored);

    /// Empty for work that needs no note.
    [[nodiscard]] PlistArray words() const;
    /// The names that the work writes or removes.
    [[nodiscard]] std::vector<std::string> names() const;
};

/// From now on there is no note; nothing is synchronised.
void forgetTemplateNote(LocalPreferences& local);
/// On the disk too: a start that found the note would take what is left where files were held for whole.
void forgetTemplateNoteOnDisk(LocalPreferences& local);

} // namespace tarnwick
