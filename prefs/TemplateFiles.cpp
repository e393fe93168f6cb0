#include "prefs/TemplateFiles.h"

#include "platform/FileContents.h"
#include "platform/FileManager.h"
#include "platform/SystemLog.h"
#include "prefs/GroupContainer.h"
#include "prefs/HeldFiles.h"
#include "prefs/LocalPreferences.h"
#include "prefs/PreferenceKeys.h"
#include "prefs/RuleList.h"
#include "prefs/TemplateFolder.h"
#include "prefs/TemplateNote.h"
#include "values/PathText.h"

#include <algorithm>
#include <utility>

namespace tarnwick {

std::optional<std::string> TemplateFiles::file(const RuleRecord& record) const {
    auto path = folder_.pathOf(templateFileName(record));
    return path && files_.exists(*path) ? path : std::nullopt;
}

void TemplateFiles::begin(const TemplateWork& work, const RuleList& changed) {
    auto noted = work;
    if (auto* held = std::get_if<TemplatesPutBack>(&noted)) {
        // What a start finds under a noted name is ours to replace.
        std::erase_if(held->files, [this](const auto& file) {
            const auto path = folder_.pathOf(file.name);
            return !path || files_.exists(*path);
        });
    }
    note(TemplateNote(std::move(noted), changed));
}

void TemplateFiles::note(const TemplateNote& note) {
    auto words = note.words();
    const auto names = note.names();
    const auto isRefused = [this](const std::string& name) { return !folder_.pathOf(name); };
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
        forgetTemplateNote(local_);
    }
    return back;
}

TemplateWork TemplateFiles::whatWasCopied(const TemplatesCopied& copied) const {
    TemplatesRemoved back;
    for (const auto& name : copied.names) {
        if (const auto path = folder_.pathOf(name); path && files_.exists(*path)) {
            back.names.push_back(name);
        }
    }
    return back.names.empty() ? TemplateWork() : TemplateWork(std::move(back));
}

TemplateWork TemplateFiles::move(const TemplateMoved& moved) {
    const auto from = folder_.pathOf(moved.from);
    const auto to = folder_.pathOf(moved.to);
    const auto succeeded = from && to && files_.move(*from, *to);
    return succeeded ? TemplateWork(TemplateMoved{moved.to, moved.from}) : TemplateWork();
}

std::optional<TemplateWork> TemplateFiles::remove(const TemplatesRemoved& removed) {
    TemplatesPutBack back;
    bool isLost = false;
    for (const auto& name : removed.names) {
        const auto path = folder_.pathOf(name);
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
        logLoss();
        return std::nullopt;
    }
    return back.files.empty() ? TemplateWork() : TemplateWork(std::move(back));
}

TemplateWork TemplateFiles::putBack(const TemplatesPutBack& held) {
    TemplatesRemoved back;
    std::vector<std::string> places;
    for (const auto& file : held.files) {
        const auto path = folder_.pathOf(file.name);
        if (path && folder_.bringBack(file.place, *path)) {
            back.names.push_back(file.name);
            places.push_back(file.place);
        }
    }
    settle(places);
    return back.names.empty() ? TemplateWork() : TemplateWork(std::move(back));
}

std::optional<TemplateWork> TemplateFiles::layOutAnew(const RuleList& templates) {
    const auto folder = folder_.path();
    if (!folder) {
        log_.write("no group container: the template folder is not laid out");
        return TemplateWork();
    }
    auto back = takeFolder(*folder);
    folder_.layOut(templates);
    return back;
}

std::optional<TemplateWork> TemplateFiles::putFolderBack(const TemplateFolderPutBack& held) {
    const auto folder = folder_.path();
    if (!folder) {
        return TemplateWork();
    }
    auto back = takeFolder(*folder);
    if (held.place.empty()) {
        return back;
    }
    if (folder_.bringBack(held.place, *folder)) {
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
    logLoss();
    return std::nullopt;
}

void TemplateFiles::logLoss() {
    log_.write("template files that could not be kept: their removal cannot be undone");
}

void TemplateFiles::settle(const std::vector<std::string>& places) {
    forgetTemplateNoteOnDisk(local_);
    for (const auto& place : places) {
        if (files_.exists(place)) {
            files_.remove(place);
        }
    }
}

TemplateWork TemplateFiles::unlessEqual(const TemplateWork& back) {
    const auto* held = std::get_if<TemplateFolderPutBack>(&back);
    const auto folder = folder_.path();
    if (!held || held->place.empty() || !folder) {
        return back;
    }
    const auto before = contents_.readTree(held->place);
    if (!before || before != contents_.readTree(*folder)) {
        return back;
    }
    files_.remove(held->place);
    return {};
}

TemplateWork TemplateFiles::beginCopying(const std::vector<std::string>& paths) {
    TemplatesCopied work;
    for (const auto& path : paths) {
        std::string name(lastPathComponent(path));
        // A file that is there already is not ours to remove.
        if (const auto copied = folder_.pathOf(name); copied && !files_.exists(*copied)) {
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
    const auto copied = folder_.pathOf(std::string(lastPathComponent(path)));
    return copied && files_.copy(path, *copied);
}

} // namespace tarnwick
