#include "prefs/TemplateFiles.h"

#include "platform/ApplicationBundle.h"
#include "platform/FileManager.h"
#include "platform/SystemLog.h"
#include "prefs/GroupContainer.h"
#include "prefs/HeldFiles.h"
#include "prefs/LocalPreferences.h"
#include "prefs/PreferenceKeys.h"
#include "prefs/RuleList.h"
#include "prefs/TemplateNote.h"
#include "values/PathText.h"
#include "values/PlistDigest.h"

#include <algorithm>
#include <utility>

namespace tarnwick {
namespace {

std::optional<std::string> templatePath(const KnownFolders& folders, const std::string& name) {
    auto path = GroupContainer(folders).templateFolder();
    if (!path || !isFileName(name)) {
        return std::nullopt;
    }
    path->append("/").append(name);
    return path;
}

/// Whether a record's file has this name. A template without extension lies under its bare name when it was
/// copied in, and is looked for with a dot after it later.
bool isOwned(const RuleList& templates, const std::string& name) {
    return std::any_of(templates.begin(), templates.end(), [&](const auto& record) {
        return templateFileName(record) == name ||
               (record.text(field::extension).empty() && record.text(field::displayName) == name);
    });
}

} // namespace

std::optional<std::string> TemplateFiles::file(const RuleRecord& record) const {
    auto path = templatePath(folders_, templateFileName(record));
    return path && files_.exists(*path) ? path : std::nullopt;
}

void TemplateFiles::begin(const TemplateWork& work, const RuleList& changed) {
    auto noted = work;
    if (auto* held = std::get_if<TemplatesPutBack>(&noted)) {
        // What a start finds under a noted name is ours to replace.
        std::erase_if(held->files, [this](const auto& file) {
            const auto path = templatePath(folders_, file.name);
            return !path || files_.exists(*path);
        });
    }
    note(TemplateNote(std::move(noted), changed));
}

void TemplateFiles::note(const TemplateNote& note) {
    auto words = note.words();
    const auto names = note.names();
    const auto isRefused = [this](const std::string& name) { return !templatePath(folders_, name); };
    if (!words.empty() && std::none_of(names.begin(), names.end(), isRefused)) {
        local_.set(key::pendingTemplateFiles, std::move(words));
    }
}

std::optional<TemplateWork> TemplateFiles::finish(const TemplateWork& work, const RuleList& templates) {
    std::optional<TemplateWork> back = TemplateWork();
    if (const auto* copied = std::get_if<TemplatesCopied>(&work)) {
        back = whatWasCopied(*copied);
    } else if (const auto* moved = std::get_if<TemplateMoved>(&work)) {
        back = move(*moved);
    } else if (const auto* removed = std::get_if<TemplatesRemoved>(&work)) {
        back = remove(*removed);
    } else if (const auto* held = std::get_if<TemplatesPutBack>(&work)) {
        back = putBack(*held);
    } else if (std::holds_alternative<TemplatesLaidOut>(work)) {
        back = layOutAnew(templates);
    } else if (const auto* folder = std::get_if<TemplateFolderPutBack>(&work)) {
        back = putFolderBack(*folder);
    }
    if (!std::holds_alternative<std::monostate>(work)) {
        forget();
    }
    return back;
}

TemplateWork TemplateFiles::whatWasCopied(const TemplatesCopied& copied) const {
    TemplatesRemoved back;
    for (const auto& name : copied.names) {
        if (const auto path = templatePath(folders_, name); path && files_.exists(*path)) {
            back.names.push_back(name);
        }
    }
    return back.names.empty() ? TemplateWork() : TemplateWork(std::move(back));
}

TemplateWork TemplateFiles::move(const TemplateMoved& moved) {
    const auto from = templatePath(folders_, moved.from);
    const auto to = templatePath(folders_, moved.to);
    const auto succeeded = from && to && files_.move(*from, *to);
    return succeeded ? TemplateWork(TemplateMoved{moved.to, moved.from}) : TemplateWork();
}

std::optional<TemplateWork> TemplateFiles::remove(const TemplatesRemoved& removed) {
    TemplatesPutBack back;
    bool isLost = false;
    for (const auto& name : removed.names) {
        const auto path = templatePath(folders_, name);
        if (!path) {
            continue;
        }
        if (auto place = held_.take(*path)) {
            back.files.push_back({name, *std::move(place)});
        } else {
            isLost = files_.remove(*path) || isLost;
        }
    }
    if (isLost) {
        return std::nullopt;
    }
    return back.files.empty() ? TemplateWork() : TemplateWork(std::move(back));
}

TemplateWork TemplateFiles::putBack(const TemplatesPutBack& held) {
    TemplatesRemoved back;
    std::vector<std::string> places;
    for (const auto& file : held.files) {
        const auto path = templatePath(folders_, file.name);
        if (path && bringBack(file.place, *path)) {
            back.names.push_back(file.name);
            places.push_back(file.place);
        }
    }
    settle(places);
    return back.names.empty() ? TemplateWork() : TemplateWork(std::move(back));
}

std::optional<TemplateWork> TemplateFiles::layOutAnew(const RuleList& templates) {
    const auto folder = GroupContainer(folders_).templateFolder();
    if (!folder) {
        log_.write("no group container: the template folder is not laid out");
        return TemplateWork();
    }
    auto back = takeFolder(*folder);
    layOut(*folder, templates);
    return back;
}

std::optional<TemplateWork> TemplateFiles::putFolderBack(const TemplateFolderPutBack& held) {
    const auto folder = GroupContainer(folders_).templateFolder();
    if (!folder) {
        return TemplateWork();
    }
    auto back = takeFolder(*folder);
    if (held.place.empty()) {
        return back;
    }
    if (bringBack(held.place, *folder)) {
        settle({held.place});
    } else {
        log_.write("the template folder could not be put back");
        // Without a folder the next start would take the list for lost.
        files_.createFolder(*folder);
    }
    return back;
}

std::optional<TemplateWork> TemplateFiles::takeFolder(const std::string& folder) {
    if (!files_.exists(folder)) {
        return TemplateFolderPutBack();
    }
    if (auto place = held_.take(folder)) {
        return TemplateFolderPutBack{*std::move(place)};
    }
    files_.remove(folder);
    return std::nullopt;
}

bool TemplateFiles::bringBack(const std::string& place, const std::string& path) {
    // A copy leaves what is held whole until nothing needs it any more.
    return files_.rename(place, path) || files_.copy(place, path);
}

void TemplateFiles::settle(const std::vector<std::string>& places) {
    forget();
    // A start that found the note would take what is left at the places for whole.
    local_.synchronize();
    for (const auto& place : places) {
        if (files_.exists(place)) {
            files_.remove(place);
        }
    }
}

void TemplateFiles::layOut(const std::string& folder, const RuleList& templates) {
    files_.createFolder(folder);
    const auto resources = bundle_.resourceFolder();
    std::size_t leftOut = 0;
    // A file that cannot be copied is left out; its record stays.
    const auto copyResource = [&](const std::string& file) {
        leftOut += files_.copy(resources + file, folder + file) ? 0 : 1;
    };
    for (const auto& record : templates) {
        copyResource("/" + templateFileName(record));
        copyResource(std::string("/").append(record.text(field::extension)).append(".png"));
    }
    if (leftOut > 0) {
        log_.write("template files and icons that could not be copied: " + std::to_string(leftOut));
    }
}

TemplateWork TemplateFiles::beginCopying(const std::vector<std::string>& paths) {
    TemplatesCopied work;
    for (const auto& path : paths) {
        std::string name(lastPathComponent(path));
        // A file that is there already is not ours to remove.
        if (const auto copied = templatePath(folders_, name); copied && !files_.exists(*copied)) {
            work.names.push_back(std::move(name));
        }
    }
    if (!work.names.empty()) {
        TemplateNote copies;
        copies.work = work;
        note(copies);
        local_.synchronize();
    }
    return work;
}

bool TemplateFiles::copy(const std::string& path) {
    const auto copied = templatePath(folders_, std::string(lastPathComponent(path)));
    return copied && files_.copy(path, *copied);
}

void TemplateFiles::recoverHeld(const RuleList& templates) {
    const auto folder = GroupContainer(folders_).templateFolder();
    if (!folder) {
        return;
    }
    const auto stored = local_.value(key::pendingTemplateFiles);
    const auto noted = stored ? TemplateNote(*stored) : TemplateNote();
    if (const auto* held = std::get_if<TemplatesPutBack>(&noted.work)) {
        for (const auto& file : held->files) {
            const auto path = templatePath(folders_, file.name);
            if (path && isOwned(templates, file.name) && replaceFromHeld(file.place, *path)) {
                log(file.name, "put back");
            }
        }
        settle({});
    } else if (const auto* heldFolder = std::get_if<TemplateFolderPutBack>(&noted.work)) {
        if (noted.owner == digestOf(templates.toPlist()) && replaceFromHeld(heldFolder->place, *folder)) {
            log_.write("the template folder is put back after an interruption");
        }
        settle({});
    }
    held_.removeAbandoned();
}

bool TemplateFiles::replaceFromHeld(const std::string& place, const std::string& path) {
    if (!held_.isPlace(place) || !files_.exists(place)) {
        return false;
    }
    if (files_.exists(path)) {
        files_.remove(path);
    }
    return bringBack(place, path);
}

void TemplateFiles::recover(const RuleList& templates, bool (*isFactory)(const RuleList&)) {
    const auto stored = local_.value(key::pendingTemplateFiles);
    const auto folder = GroupContainer(folders_).templateFolder();
    if (!stored || !folder) {
        return;
    }
    const auto work = TemplateNote(*stored).work;
    // Any other list has files of its own that the layout would remove.
    if (std::holds_alternative<TemplatesLaidOut>(work) && isFactory(templates)) {
        log_.write("the template folder is laid out again after an interruption");
        files_.remove(*folder);
        layOut(*folder, templates);
    } else if (const auto* moved = std::get_if<TemplateMoved>(&work)) {
        const auto from = templatePath(folders_, moved->from);
        const auto to = templatePath(folders_, moved->to);
        if (from && to && !isOwned(templates, moved->from) && isOwned(templates, moved->to) &&
            files_.exists(*from) && files_.move(*from, *to)) {
            log(moved->from, "moved to " + moved->to);
        }
    } else if (const auto* removed = std::get_if<TemplatesRemoved>(&work)) {
        removeStrangers(removed->names, templates);
    } else if (const auto* copied = std::get_if<TemplatesCopied>(&work)) {
        removeStrangers(copied->names, templates);
    }
    forget();
}

void TemplateFiles::removeStrangers(const std::vector<std::string>& names, const RuleList& templates) {
    for (const auto& name : names) {
        const auto path = templatePath(folders_, name);
        if (path && !isOwned(templates, name) && files_.exists(*path) && files_.remove(*path)) {
            log(name, "removed");
        }
    }
}

void TemplateFiles::log(std::string_view name, std::string_view what) {
    log_.write(std::string("template file ")
                   .append(name)
                   .append(": ")
                   .append(what)
                   .append(" after an interruption"));
}

void TemplateFiles::forget() {
    if (local_.contains(key::pendingTemplateFiles)) {
        local_.remove(key::pendingTemplateFiles);
    }
}

} // namespace tarnwick
